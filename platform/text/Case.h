#pragma once

#include <string>
#include <string_view>

namespace velmar::text {

// One character stays one character (simple case mappings of the Unicode standard, section 5.18), so that
// positions found in the result hold in the original.

/// In lower case.
std::string LCase(std::string_view text);

/// In upper case.
std::string UCase(std::string_view text);

/// Case-folded: two texts that differ only in case become the same text.
std::string FoldCase(std::string_view text);

/// Case-folded and composed (normalization form C): the same for two texts exactly if they are the same but
/// for case and for the way in which accented letters are composed. Not kept: the number of characters.
std::string FoldCanonical(std::string_view text);

/// The simple case folding of one character.
char32_t FoldCase(char32_t codePoint) noexcept;

}  // namespace velmar::text
