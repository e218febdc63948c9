#pragma once

#include <string>
#include <string_view>

namespace velmar::text {

/// The decimal digits behind one leading blank, or behind a minus sign: " 12", "-3".
std::string Str(long long number);

/// The shortest text of at most 15 significant digits, with a point as decimal sign and no leading blank:
/// "10", "0.3", "-2.5"; from 1E+15 on and below 0.0001 with an exponent of at least two digits: "1E+15",
/// "2.5E-07". What is no number reads "1.#INF", "-1.#INF" or "1.#NAN".
std::string FromDouble(double number);

/// The number at the start of a text, 0 if there is none. Blanks, tabs and line feeds are skipped wherever
/// they stand; the decimal sign is the point; an exponent follows E or D; &H starts a hexadecimal and &O an
/// octal number, of which up to 16 bits, else up to 32 bits, are taken with their sign.
/// Raises kOverflow if the number is too great for a double.
double Val(std::string_view text);

}  // namespace velmar::text
