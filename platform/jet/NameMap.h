#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace velmar::jet {

/// The stored spellings of a database's table and column names. The engine folds only ASCII letters in a
/// name; this map lets "AÑO" find a column that was created as "Año".
class NameMap {
 public:
  /// Adds a name as it is stored. Names that differ only in case may both be added.
  void Add(std::string_view storedName);

  /// The stored spelling of the name: the name itself if it is stored so, else the first one added that is
  /// equal but for case, else the name as given.
  std::string Spelling(std::string_view name) const;

 private:
  std::unordered_set<std::string> stored_;
  std::unordered_map<std::string, std::string> byFoldedName_;
};

}  // namespace velmar::jet
