#pragma once

#include <optional>
#include <string_view>

namespace velmar::jet {

/// The number that a whole text writes, with blanks around it: a sign, digits with a point or a comma as
/// decimal sign and an exponent; where both signs stand, the last is the decimal one and the others part
/// thousands. Nothing if the text is no number.
std::optional<double> ReadNumber(std::string_view text);

}  // namespace velmar::jet
