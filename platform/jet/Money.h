#pragma once

#include <cstdint>
#include <optional>

namespace velmar::jet {

// Money is kept in doubles. Whatever has at most four decimals is added and multiplied as a whole number of
// ten-thousandths, so that sums come out as on paper.

/// Ten-thousandths of a number, if it has at most four decimals and fewer than 15 digits in all.
std::optional<std::int64_t> TenThousandths(double number);

/// The number of so many ten-thousandths.
double FromTenThousandths(std::int64_t units);

/// The sum, the difference and the product; exact where both numbers have at most four decimals.
double Add(double a, double b);
double Subtract(double a, double b);
double Multiply(double a, double b);

enum class Half { kToEven, kAway };

/// Rounded to so many decimals (at most 15). A half, of the number as it is written in decimal, goes to the
/// even neighbour or away from zero.
double RoundTo(double number, int decimals, Half half);

}  // namespace velmar::jet
