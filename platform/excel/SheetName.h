#pragma once

#include <string>
#include <string_view>

namespace velmar::excel {

/// The rules for the names of sheets.
struct SheetName {
  static constexpr std::size_t kLongest = 31;

  /// What is wrong with the name, in Spanish and ready to follow "porque "; empty if nothing is.
  static std::string Problem(std::string_view name);
  /// True when the two name the same sheet: case does not tell sheets apart, accents do.
  static bool Same(std::string_view left, std::string_view right);
};

}  // namespace velmar::excel
