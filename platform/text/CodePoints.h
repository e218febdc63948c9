#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar::text {

/// The code point that starts at byte `offset`, which is moved behind it. A byte that starts no valid UTF-8
/// sequence counts as one U+FFFD. `offset` must be less than the text's size.
char32_t NextCodePoint(std::string_view text, std::size_t& offset);

/// Appends the code point's UTF-8 bytes.
void AppendCodePoint(std::string& text, char32_t codePoint);

/// True if every byte is below 0x80.
bool IsAscii(std::string_view text) noexcept;

}  // namespace velmar::text
