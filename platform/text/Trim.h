#pragma once

#include <string>
#include <string_view>

namespace velmar::text {

// Only the blank U+0020 is taken away: tabs, line ends and no-break spaces stay.

/// Without the blanks at the start.
std::string LTrim(std::string_view text);

/// Without the blanks at the end.
std::string RTrim(std::string_view text);

/// Without the blanks at both ends.
std::string Trim(std::string_view text);

}  // namespace velmar::text
