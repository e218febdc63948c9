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

  /// The rows of the table are distinct as this connection has just committed them. othersChanges is what
  /// the database gave of it inside that transaction.
  void Note(std::string table, std::int64_t othersChanges);
  bool Holds(std::string_view table) const;
  /// True if the table, regardless of case, is the one that is remembered, whatever has happened since.
  bool IsOf(std::string_view table) const;
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
