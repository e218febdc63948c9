#include "platform/jet/Money.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace velmar::jet {
namespace {

constexpr double kUnits = 10000;
// Below this, neighbouring doubles lie closer together than a ten-thousandth's rounding.
constexpr double kMostUnits = 1e15;

__extension__ using Wide = __int128;

}  // namespace

std::optional<std::int64_t> TenThousandths(double number) {
  const double units = number * kUnits;
  if (!(std::fabs(units) < kMostUnits)) return std::nullopt;
  const double whole = std::nearbyint(units);
  if (whole / kUnits != number) return std::nullopt;
  return static_cast<std::int64_t>(whole);
}

double FromTenThousandths(std::int64_t units) {
  return static_cast<double>(units) / kUnits;
}

double Add(double a, double b) {
  const auto unitsA = TenThousandths(a);
  const auto unitsB = TenThousandths(b);
  return unitsA && unitsB ? FromTenThousandths(*unitsA + *unitsB) : a + b;
}

double Subtract(double a, double b) {
  return Add(a, -b);
}

double Multiply(double a, double b) {
  const auto unitsA = TenThousandths(a);
  const auto unitsB = TenThousandths(b);
  if (!unitsA || !unitsB) return a * b;
  const Wide product = Wide{*unitsA} * *unitsB;
  constexpr double kExact = 9e15;
  const auto rounded = static_cast<double>(product);
  // Beyond what a double holds to the last digit, its own product is as good.
  return std::fabs(rounded) < kExact ? rounded / (kUnits * kUnits) : a * b;
}

double RoundTo(double number, int decimals, Half half) {
  constexpr double kWithoutFraction = 1e15;
  if (!(std::fabs(number) < kWithoutFraction)) return number;
  if (decimals >= 0 && std::trunc(number) == number) return number;
  // The shortest decimal form tells whether the number is a half on paper: 2.675 is, though its double is
  // not.
  std::array<char, 64> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.15g", number);
  const double shown = std::strtod(buffer.data(), nullptr);
  const double scale = std::pow(10.0, decimals);
  const double scaled = shown * scale;
  const double below = std::floor(scaled);
  const double fraction = scaled - below;
  // The scaling itself is good to a few units in the last place.
  const double slack = std::max(std::fabs(scaled), 1.0) * 4e-16;
  double rounded = std::nearbyint(scaled);
  if (std::fabs(fraction - 0.5) <= slack) {
    const bool down = half == Half::kToEven ? std::fmod(below, 2.0) == 0 : number < 0;
    rounded = down ? below : below + 1;
  }
  std::snprintf(buffer.data(), buffer.size(), "%.*f", decimals, rounded / scale);
  return std::strtod(buffer.data(), nullptr);
}

}  // namespace velmar::jet
