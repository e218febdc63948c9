#include "platform/ado/TableNames.h"

#include <sqlite3.h>
#include <strings.h>

#include "platform/ado/Database.h"
#include "platform/ado/Statement.h"
#include "platform/jet/NameMap.h"
#include "platform/jet/Translation.h"
#include "platform/text/Case.h"

namespace ADODB {

namespace {

bool StartsWith(std::string_view name, std::string_view start) noexcept {
  return name.size() >= start.size() && ::strncasecmp(name.data(), start.data(), start.size()) == 0;
}

bool IsWord(std::string_view name, std::string_view word) noexcept {
  return name.size() == word.size() && StartsWith(name, word);
}

}  // namespace

bool IsSystemTable(std::string_view name) noexcept {
  return IsWord(name, kSystemTable);
}

bool IsEngineModule(std::string_view name) noexcept {
  if (StartsWith(name, "pragma_")) return true;
  for (const std::string_view module :
       {"dbstat", "json_each", "json_tree", "bytecode", "tables_used", "fts3tokenize", "generate_series"}) {
    if (IsWord(name, module)) return true;
  }
  return false;
}

bool SameName(std::string_view a, std::string_view b) {
  return a == b || velmar::text::FoldCase(a) == velmar::text::FoldCase(b);
}

std::vector<std::string> TableNames(Database& database, const std::string& alias) {
  std::vector<std::string> names;
  const Database::EngineAccess access(database);
  const Database::Concerning concerning(database, alias);
  Statement list(database,
                 "SELECT name FROM " + velmar::jet::QuoteIdentifier(alias) +
                     ".sqlite_master WHERE type IN ('table', 'view') AND name NOT LIKE 'sqlite\\_%' ESCAPE "
                     "'\\'");
  while (list.Step()) {
    if (!IsSystemTable(list.Text(0))) names.emplace_back(list.Text(0));
  }
  return names;
}

std::optional<std::string> FindTable(Database& database, const std::string& alias, std::string_view name) {
  const std::vector<std::string> names = TableNames(database, alias);
  const auto found = FindName(names, name);
  return found ? std::optional<std::string>(names[*found]) : std::nullopt;
}

std::vector<std::string> ColumnNames(Database& database, const std::string& alias, const std::string& table) {
  std::vector<std::string> names;
  const Database::EngineAccess access(database);
  const Database::Concerning concerning(database, alias);
  Statement list(database, "SELECT name FROM pragma_table_info(?1, ?2) ORDER BY cid");
  list.Bind(1, table);
  list.Bind(2, alias);
  while (list.Step()) names.emplace_back(list.Text(0));
  return names;
}

bool HasRowKeys(Database& database, const std::string& alias, const std::string& table) {
  return !FindName(ColumnNames(database, alias, table), "_rowid_") &&
         sqlite3_table_column_metadata(database.Handle(), alias.c_str(), table.c_str(), "_rowid_", nullptr,
                                       nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool IsPlainTable(Database& database, const std::string& table) {
  const Database::EngineAccess access(database);
  std::vector<velmar::jet::OutputColumn> columns;
  Statement list(database, "SELECT name, type FROM pragma_table_info(?1, 'main') ORDER BY cid");
  list.Bind(1, table);
  while (list.Step()) columns.push_back({std::string(list.Text(0)), std::string(list.Text(1))});
  // The file holds the text of the definition without the name of the database.
  std::string plain = velmar::jet::CreateTableText({"main", table, false, {}, {}, {}}, columns);
  plain.replace(plain.find("main."), 5, "");
  Statement definitions(database, "SELECT sql FROM main.sqlite_master WHERE lower(tbl_name) = lower(?1)");
  definitions.Bind(1, table);
  const bool only = definitions.Step() && definitions.Text(0) == plain;
  return only && !definitions.Step();
}

std::optional<std::size_t> FindName(const std::vector<std::string>& names, std::string_view name) {
  const std::string folded = velmar::text::FoldCase(name);
  std::optional<std::size_t> found;
  for (std::size_t index = 0; index < names.size(); ++index) {
    if (names[index] == name) return index;
    if (!found && velmar::text::FoldCase(names[index]) == folded) found = index;
  }
  return found;
}

void AddNames(Database& database, const std::string& alias, velmar::jet::NameMap& names) {
  for (const std::string& table : TableNames(database, alias)) {
    names.Add(table);
    for (const std::string& column : ColumnNames(database, alias, table)) names.Add(column);
  }
}

}  // namespace ADODB
