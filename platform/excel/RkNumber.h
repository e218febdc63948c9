#pragma once

#include <cstdint>
#include <optional>

namespace velmar::excel {

/// The four-byte form of a number ([MS-XLS] 2.5.217 RkNumber): a whole number of 30 bits, a hundredth of one,
/// or a double whose low 34 bits are zero.
struct RkNumber {
  /// The code, if the number has one that decodes to the very same double. Negative zero has none.
  static std::optional<std::uint32_t> Encode(double value);
};

}  // namespace velmar::excel
