#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace velmar::reliability {

/// For each table of a database a digest of its rows, in their order.
using Tables = std::map<std::string, std::size_t>;

/// The folder of a sample charity: its two databases, and what exports make beside them. Gone at the end.
class Office {
 public:
  /// Generates the databases. In memory where the system offers that.
  explicit Office(long collaborators);
  /// A fresh copy of another one's databases, below `parent` or, if that is empty, where the first stands.
  explicit Office(const Office& original, const std::string& parent = {});
  Office& operator=(const Office&) = delete;
  ~Office();

  const std::string& Folder() const noexcept { return folder_; }
  std::string Path(const std::string& name) const { return folder_ + '/' + name; }
  /// Puts the databases back as the other one's are, and removes everything else.
  void Reset(const Office& original);

  /// Rows of a database of the folder, read by the engine alone. Throws std::runtime_error if it cannot be
  /// read.
  Tables Rows(const std::string& database) const { return StateOf(database).rows; }
  /// What the engine's own check says of the database; "ok" if all is well.
  std::string Integrity(const std::string& database) const { return StateOf(database).integrity; }
  /// The names in the folder, hidden ones too, but for the databases.
  std::vector<std::string> Others() const;

 private:
  struct State {
    std::string integrity;
    Tables rows;
  };
  const State& StateOf(const std::string& database) const;

  std::string folder_;
};

/// A new folder of its own: in memory where the system offers that.
std::string MakeFolder(const std::string& parent = {});

}  // namespace velmar::reliability
