#pragma once

#include <cstdint>
#include <span>

namespace velmar::excel {

/// FNV-1a, 64 bits: tells whether bytes are still those that were written. No protection against intent.
inline std::uint64_t Digest(std::span<const std::uint8_t> bytes, std::uint64_t seed = 0xCBF29CE484222325u) {
  for (const std::uint8_t byte : bytes) seed = (seed ^ byte) * 0x100000001B3u;
  return seed;
}

}  // namespace velmar::excel
