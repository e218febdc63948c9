#include "platform/text/CodePoints.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace velmar::text {

char32_t NextCodePoint(std::string_view text, std::size_t& offset) {
  constexpr UChar32 kReplacement = 0xFFFD;
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  UChar32 codePoint = 0;
  U8_NEXT_OR_FFFD(bytes, offset, text.size(), codePoint);
  return static_cast<char32_t>(codePoint < 0 ? kReplacement : codePoint);
}

void AppendCodePoint(std::string& text, char32_t codePoint) {
  std::array<std::uint8_t, U8_MAX_LENGTH> bytes{};
  std::size_t length = 0;
  bool failed = false;
  U8_APPEND(bytes.data(), length, bytes.size(), static_cast<UChar32>(codePoint), failed);
  if (failed) {
    text += "\xEF\xBF\xBD";
    return;
  }
  text.append(reinterpret_cast<const char*>(bytes.data()), length);
}

bool IsAscii(std::string_view text) noexcept {
  return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

}  // namespace velmar::text
