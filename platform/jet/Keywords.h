#pragma once

#include <string_view>

namespace velmar::jet {

/// True if the texts are equal but for the case of ASCII letters.
bool EqualWord(std::string_view a, std::string_view b);

/// True for words that cannot stand for a name unless they are in brackets or behind a point.
bool IsReserved(std::string_view word);

/// True for TRUE, FALSE and NULL, the reserved words that are values.
bool IsValueWord(std::string_view word);

}  // namespace velmar::jet
