#include "platform/ado/DirectCell.h"

#include <sqlite3.h>

#include <utility>
#include <vector>

#include "platform/ado/Database.h"
#include "platform/ado/Statement.h"
#include "platform/ado/TableNames.h"
#include "platform/jet/Translation.h"
#include "platform/text/Case.h"

namespace ADODB {
namespace {

/// The engine's rule for the declared types whose columns leave a text as it is.
bool KeepsTexts(const std::string& declaredType) {
  const std::string type = velmar::text::UCase(declaredType);
  const auto holds = [&type](const char* piece) { return type.find(piece) != std::string::npos; };
  return type.empty() || (!holds("INT") && (holds("CHAR") || holds("CLOB") || holds("TEXT")));
}

}  // namespace

bool DirectCell::Suits(Database& database, const std::string& table, const std::string& column) {
  const Database::EngineAccess access(database);
  // What is written must be the very bytes that the file holds.
  Statement encoding(database, "PRAGMA main.encoding");
  if (!encoding.Step() || encoding.Text(0) != "UTF-8") return false;
  Statement type(database, "SELECT type FROM pragma_table_info(?1, 'main') WHERE name = ?2");
  type.Bind(1, table);
  type.Bind(2, column);
  return type.Step() && KeepsTexts(std::string(type.Text(0))) && IsPlainTable(database, table);
}

DirectCell::DirectCell(Database& database, std::string table, std::string column)
    : database_(&database), table_(std::move(table)), column_(std::move(column)) {}

DirectCell::~DirectCell() {
  Close();
}

bool DirectCell::Write(std::int64_t key, std::string_view text) {
  const int found = place_ != nullptr ? sqlite3_blob_reopen(place_, key)
                                      : sqlite3_blob_open(database_->Handle(), "main", table_.c_str(),
                                                          column_.c_str(), key, 1, &place_);
  const int size = static_cast<int>(text.size());
  if (found == SQLITE_OK && sqlite3_blob_bytes(place_) == size &&
      sqlite3_blob_write(place_, text.data(), size, 0) == SQLITE_OK) {
    database_->NoteDirectChange();
    return true;
  }
  Close();
  return false;
}

void DirectCell::Close() noexcept {
  sqlite3_blob_close(std::exchange(place_, nullptr));
}

}  // namespace ADODB
