#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar::text {

// All texts are UTF-8. A character is a Unicode code point; the first has position 1.

/// Number of characters.
std::size_t Len(std::string_view text) noexcept;

/// The first `count` characters, or the whole text if it is shorter.
std::string Left(std::string_view text, std::size_t count);

/// The last `count` characters, or the whole text if it is shorter.
std::string Right(std::string_view text, std::size_t count);

/// From the character at `start` to the end; empty if the text ends before it.
/// Raises kInvalidProcedureCall if `start` is 0.
std::string Mid(std::string_view text, std::size_t start);

/// At most `length` characters from the one at `start`; empty if the text ends before it.
/// Raises kInvalidProcedureCall if `start` is 0.
std::string Mid(std::string_view text, std::size_t start, std::size_t length);

/// The byte, counted from 0, at which the character at `position` starts; the size of the text in bytes if it
/// ends before that. Raises kInvalidProcedureCall if `position` is 0.
std::size_t ByteOffset(std::string_view text, std::size_t position);

/// True if the text is well-formed UTF-8 (RFC 3629).
bool IsValid(std::string_view text) noexcept;

}  // namespace velmar::text
