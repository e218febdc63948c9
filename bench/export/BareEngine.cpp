#include "export/BareEngine.h"

#include <sqlite3.h>

#include <filesystem>
#include <stdexcept>

#include "platform/jet/Engine.h"
#include "platform/jet/Translation.h"

namespace velmar::bench {
namespace {

sqlite3* Open(const std::string& path) {
  sqlite3* database = nullptr;
  if (sqlite3_open(path.c_str(), &database) != SQLITE_OK) throw std::runtime_error("no se abre " + path);
  return database;
}

}  // namespace

BareEngine::BareEngine(const std::string& folder)
    : stagingFile_(folder + "/suelo.db"), database_(Open(folder + "/Gestion.mdb"), sqlite3_close) {
  std::filesystem::remove(stagingFile_);
  jet::RegisterFunctions(database_.get());
  Run("PRAGMA cache_size = -65536");
  Run("PRAGMA mmap_size = 1073741824");
  Run("ATTACH '" + stagingFile_ + "' AS suelo");
  Run("PRAGMA suelo.journal_mode = OFF");
  Run("PRAGMA suelo.synchronous = OFF");
}

BareEngine::~BareEngine() {
  database_.reset();
  std::error_code ignored;
  std::filesystem::remove(stagingFile_, ignored);
}

void BareEngine::Stage(const Clauses& clauses) {
  Run("CREATE TABLE suelo.t AS " + jet::Translate(clauses.select + clauses.rest, {}).sql);
}

void BareEngine::ForEachRow(
    const std::function<void(sqlite3_stmt*, const std::vector<std::string>&)>& visit) {
  sqlite3_stmt* row = nullptr;
  if (sqlite3_prepare_v2(database_.get(), "SELECT * FROM suelo.t", -1, &row, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(database_.get()));
  }
  const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> owner(row, sqlite3_finalize);
  std::vector<std::string> columns;
  for (int i = 0; i < sqlite3_column_count(row); ++i) columns.emplace_back(sqlite3_column_name(row, i));
  while (sqlite3_step(row) == SQLITE_ROW) visit(row, columns);
}

void BareEngine::Run(const std::string& sql) {
  if (sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(database_.get()) + (": " + sql));
  }
}

}  // namespace velmar::bench
