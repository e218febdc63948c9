#pragma once

namespace velmar::text {

/// How two texts are held against each other.
enum class Comparison {
  kBinary,  ///< Character by character, by code point: only the same characters are equal.
  kText,    ///< Without regard to case and with regard to accents.
};

}  // namespace velmar::text
