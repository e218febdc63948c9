#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmar::com {

/// A class or interface identifier, laid out as in the binary interface (RFC 9562, in the variant of mixed
/// byte order: three numbers and eight bytes).
struct Guid {
  std::uint32_t data1 = 0;
  std::uint16_t data2 = 0;
  std::uint16_t data3 = 0;
  std::array<std::uint8_t, 8> data4{};

  auto operator<=>(const Guid&) const = default;

  /// From 32 hexadecimal digits in groups of 8, 4, 4, 4 and 12, in braces or without.
  /// Raises kInvalidProcedureCall for anything else.
  static Guid FromText(std::string_view text);
  /// In braces and capitals.
  std::string ToText() const;
};

}  // namespace velmar::com
