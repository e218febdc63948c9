#pragma once

#include <string>

#include "platform/error/RuntimeError.h"

namespace velmar::jet {

enum class TokenKind {
  kEnd,
  kName,       ///< a bare word: keyword or name; `text` as written
  kBracketed,  ///< [a name]; `text` without the brackets
  kText,       ///< 'text' or "text"; `text` without the quotes, doubled ones undone
  kNumber,     ///< `text` in decimal, as SQLite reads it
  kDate,       ///< #date#; `date` holds it
  kSymbol      ///< an operator or a sign; `text` holds it in its usual form ("=>" reads ">=")
};

/// One token of a Jet text.
struct Token {
  TokenKind kind = TokenKind::kEnd;
  std::string text;
  double date = 0;
  TextSpan span;
};

}  // namespace velmar::jet
