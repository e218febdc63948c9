#include "platform/excel/RkNumber.h"

#include <bit>
#include <cmath>

namespace velmar::excel {

namespace {

constexpr double kLimit = 536'870'912;  // 2 to the power of 29

std::optional<std::uint32_t> Whole(double value) {
  if (!(value >= -kLimit && value < kLimit)) return std::nullopt;
  const auto whole = static_cast<std::int32_t>(value);
  if (static_cast<double>(whole) != value) return std::nullopt;
  return static_cast<std::uint32_t>(whole) << 2;
}

}  // namespace

std::optional<std::uint32_t> RkNumber::Encode(double value) {
  if (value == 0 && std::signbit(value)) return std::nullopt;
  if (const auto code = Whole(value)) return *code | 2;
  const std::uint64_t bits = std::bit_cast<std::uint64_t>(value);
  if ((bits & 0x3FFFFFFFFu) == 0) return static_cast<std::uint32_t>(bits >> 32);
  const double hundredfold = std::round(value * 100);
  if (hundredfold / 100 != value) return std::nullopt;
  if (const auto code = Whole(hundredfold)) return *code | 3;
  return std::nullopt;
}

}  // namespace velmar::excel
