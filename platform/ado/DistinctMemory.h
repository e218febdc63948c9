#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ADODB {

class Database;

/// What a connection remembers of one table of its own file: that no two of its rows are equal. It forgets as
/// soon as any connection has written to the file, whatever the change was.
class DistinctMemory {
 public:
  explicit DistinctMemory(Database& database) noexcept : database_(&database) {}

  /// The rows of the table are distinct as they stand now, outside any transaction.
  void Note(std::string table);
  bool Holds(std::string_view table) const;
  /// The table that is remembered; nothing if none is or the file has changed.
  std::optional<std::string> Table() const;
  void Forget() noexcept { noted_.reset(); }

 private:
  struct Noted {
    std::string table;
    std::int64_t own = 0;
    std::int64_t others = 0;
  };

  Database* database_;
  std::optional<Noted> noted_;
};

}  // namespace ADODB
