#pragma once

#include <string>
#include <string_view>

namespace velmar {

/// A text of names, each followed by ", ". Whether a name stands in it is a substring test without regard to
/// case: a name that is part of one that came before counts as present.
class DistinctList {
 public:
  /// Appends the name unless it stands in the list already. True if it was appended.
  bool Add(std::string_view name);
  /// An empty list holds nothing, not even the empty name.
  bool Holds(std::string_view name) const;
  /// The names with ", " between them. An empty list has no last separator to cut: kInvalidProcedureCall.
  std::string Joined() const;

 private:
  std::string text_;
  std::string folded_;
};

/// Cuts the last separator, ", ", of a list. A text that does not hold one is kInvalidProcedureCall.
std::string_view WithoutLastSeparator(std::string_view list);

}  // namespace velmar
