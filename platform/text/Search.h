#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/Comparison.h"

namespace velmar::text {

// Positions count characters from 1. With Comparison::kText a character of one text stands for a character of
// the other if they differ at most in case.

/// Position of the first occurrence that starts at or behind the character `start`, 0 if there is none. The
/// empty text is found at `start`, unless the searched text ends before it.
/// Raises kInvalidProcedureCall if `start` is 0.
std::size_t InStr(std::size_t start, std::string_view text, std::string_view sought,
                  Comparison comparison = Comparison::kBinary);

/// True if `sought` stands anywhere in `text`. The empty text stands in every text.
bool Contains(std::string_view text, std::string_view sought, Comparison comparison = Comparison::kBinary);

/// `text` with the first `count` occurrences of `find` replaced, all of them if `count` is -1. Occurrences do
/// not overlap and what was put in is not searched again. An empty `find` changes nothing.
std::string Replace(std::string_view text, std::string_view find, std::string_view with,
                    Comparison comparison = Comparison::kBinary, long count = -1);

/// The pieces between the occurrences of `delimiter`, empty pieces included. The empty text has no pieces; an
/// empty delimiter leaves the text in one piece.
std::vector<std::string> Split(std::string_view text, std::string_view delimiter);

/// The pieces with `delimiter` between them.
std::string Join(const std::vector<std::string>& pieces, std::string_view delimiter);

}  // namespace velmar::text
