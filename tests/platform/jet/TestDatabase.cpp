#include "platform/jet/TestDatabase.h"

#include <sqlite3.h>

#include <map>
#include <random>
#include <utility>

#include "platform/error/RuntimeError.h"
#include "platform/jet/Engine.h"
#include "platform/jet/SyntaxFailure.h"

namespace velmar::jet {
namespace {

std::string Shown(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return "NULL";
    case SQLITE_TEXT:
      return "'" + std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement, column))) + "'";
    default:
      return reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  }
}

}  // namespace

Translation Translated(std::string_view jetText, const NameMap* names) {
  std::map<std::pair<std::string, std::string>, std::string> aliases;
  const auto alias = [&aliases](const std::string& path, const std::string& password) {
    return aliases.try_emplace({path, password}, "ext" + std::to_string(aliases.size() + 1)).first->second;
  };
  return Translate(jetText, alias, names);
}

TestDatabase::TestDatabase() {
  std::random_device random;
  folder_ = std::filesystem::temp_directory_path() / ("velmar-jet-" + std::to_string(random()));
  std::filesystem::create_directories(folder_);
  if (sqlite3_open((folder_ / "gestion.mdb").c_str(), &database_) != SQLITE_OK) {
    throw std::runtime_error("cannot open the test database");
  }
  RegisterFunctions(database_);
  Sql("PRAGMA journal_mode = MEMORY");
  Sql("PRAGMA synchronous = OFF");
}

TestDatabase::~TestDatabase() {
  sqlite3_close(database_);
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

Outcome TestDatabase::Sql(const std::string& text) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database_, text.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
    throw RuntimeError(sqlite3_error_offset(database_) < 0 ? kEngineFailure : kUnknownName,
                       sqlite3_errmsg(database_), std::to_string(sqlite3_error_offset(database_)));
  }
  Outcome outcome;
  const int count = sqlite3_column_count(statement);
  for (int i = 0; i < count; ++i) outcome.names.emplace_back(sqlite3_column_name(statement, i));
  while (sqlite3_step(statement) == SQLITE_ROW) {
    std::string row;
    for (int i = 0; i < count; ++i) row += (i == 0 ? "" : " | ") + Shown(statement, i);
    outcome.rows.push_back(row);
  }
  if (sqlite3_finalize(statement) != SQLITE_OK) throw RuntimeError(kEngineFailure, sqlite3_errmsg(database_));
  return outcome;
}

void TestDatabase::Attach(const std::string& alias) {
  Sql("ATTACH '" + (folder_ / "externa.mdb").string() + "' AS " + alias);
}

Outcome TestDatabase::Run(std::string_view jetText, const NameMap* names) {
  const Translation translation = Translated(jetText, names);
  try {
    return Run(translation);
  } catch (const RuntimeError& error) {
    if (error.Source().empty()) throw;
    // As a caller does it: the engine's place in the text becomes one in the Jet text.
    const auto span = translation.SourceOf(std::stoul(error.Source()));
    throw RuntimeError(error.Number(), error.Description(), "", span);
  }
}

Outcome TestDatabase::Run(const Translation& translation) {
  const bool moves =
      translation.kind == StatementKind::kSelectInto || translation.kind == StatementKind::kInsertSelect;
  if (!moves || translation.target->excel) return Sql(translation.sql);
  const TargetTable& target = *translation.target;
  std::vector<std::string> columns = target.columns;
  if (translation.kind == StatementKind::kSelectInto) {
    std::vector<OutputColumn> made = translation.columns;
    if (made.empty()) {
      for (const std::string& name : Sql("SELECT * FROM (" + translation.sql + ") LIMIT 0").names) {
        made.push_back({name, ""});
      }
    }
    Sql(CreateTableText(target, made));
  } else if (columns.empty()) {
    for (const OutputColumn& column : translation.columns) columns.push_back(column.name);
  }
  Sql(InsertText(target, columns, translation.sql));
  return Sql("SELECT * FROM " + QuoteIdentifier(target.alias) + "." + QuoteIdentifier(target.table));
}

void TestDatabase::RunExternal(std::string_view jetText) {
  Translation translation = Translated(jetText);
  Attach("ext");
  const auto place = translation.sql.find("main.");
  if (place != std::string::npos) translation.sql.replace(place, 5, "ext.");
  Sql(translation.sql);
  Sql("DETACH ext");
}

void TestDatabase::Begin() {
  Attach("ext1");
  Attach("ext2");
  Sql("BEGIN");
}

void TestDatabase::Rollback() {
  Sql("ROLLBACK");
  Sql("DETACH ext1");
  Sql("DETACH ext2");
}

}  // namespace velmar::jet
