#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3_blob;

namespace ADODB {

class Database;

/// Overwrites texts of one column of a table in place, where they keep their length: a fraction of the work
/// of an UPDATE, which makes the whole row anew. While it holds a place open, the transaction cannot be
/// committed: Close comes first.
class DirectCell {
 public:
  /// True for a text column of a table of the main file as SELECT … INTO makes it: without keys, conditions,
  /// indexes and triggers, all of which such a write would pass by.
  static bool Suits(Database& database, const std::string& table, const std::string& column);

  /// Table and column must suit.
  DirectCell(Database& database, std::string table, std::string column);
  ~DirectCell();
  DirectCell(const DirectCell&) = delete;
  DirectCell& operator=(const DirectCell&) = delete;

  /// The row's value is a text. False, and nothing has changed, if it cannot be overwritten so: it has
  /// another length, or the row is not there.
  bool Write(std::int64_t key, std::string_view text);
  void Close() noexcept;

 private:
  Database* database_;
  std::string table_;
  std::string column_;
  sqlite3_blob* place_ = nullptr;
};

}  // namespace ADODB
