#pragma once

#include <string_view>

#include "platform/text/Comparison.h"

namespace velmar::text {

/// Less than, equal to or greater than 0 as `a` comes before, equals or comes after `b` in Spanish order:
/// without regard to case, with regard to accents, ñ behind n (collation "es" of the Unicode CLDR, to its
/// secondary level). Texts are equal exactly if they are the same but for case and for the way in which an
/// accented letter is composed; others that the collation does not tell apart (control characters, ª and a)
/// follow the order of their case-folded code points. This is a total preorder. Does not allocate for texts
/// that differ early or only in case.
int CompareText(std::string_view a, std::string_view b);

/// True if CompareText finds the texts equal.
bool EqualText(std::string_view a, std::string_view b);

/// CompareText, or the order of code points for Comparison::kBinary.
int Compare(std::string_view a, std::string_view b, Comparison comparison);

/// True if Compare gives 0.
bool Equal(std::string_view a, std::string_view b, Comparison comparison);

}  // namespace velmar::text
