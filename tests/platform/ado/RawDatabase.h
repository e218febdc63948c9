#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>
#include <string>

#include "platform/jet/Engine.h"

namespace ADODB {

/// A database file as the engine alone sees it, with the collation and functions of Jet.
class RawDatabase {
 public:
  explicit RawDatabase(const std::string& path) : handle_(Open(path), sqlite3_close) {
    velmar::jet::RegisterFunctions(handle_.get());
    Run("PRAGMA synchronous = OFF");
  }

  void Run(const std::string& sql) {
    char* message = nullptr;
    EXPECT_EQ(sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, &message), SQLITE_OK)
        << sql << ": " << (message == nullptr ? "" : message);
    sqlite3_free(message);
  }

  /// All rows, a line each; values as SQL literals, so that kinds can be told apart.
  std::string Rows(const std::string& select) {
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(handle_.get(), select.c_str(), -1, &statement, nullptr), SQLITE_OK)
        << select << ": " << sqlite3_errmsg(handle_.get());
    std::string rows;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      for (int column = 0; column < sqlite3_column_count(statement); ++column) {
        const int type = sqlite3_column_type(statement, column);
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        rows += " " + std::to_string(type) + ":" + (text == nullptr ? "" : text);
      }
      rows += '\n';
    }
    sqlite3_finalize(statement);
    return rows;
  }

 private:
  static sqlite3* Open(const std::string& path) {
    sqlite3* handle = nullptr;
    EXPECT_EQ(sqlite3_open(path.c_str(), &handle), SQLITE_OK);
    return handle;
  }

  std::unique_ptr<sqlite3, int (*)(sqlite3*)> handle_;
};

}  // namespace ADODB
