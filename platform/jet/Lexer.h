#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/jet/Token.h"

namespace velmar::jet {

/// Cuts a Jet text into tokens. Every failure is a RuntimeError kQuerySyntax with its Span.
class Lexer {
 public:
  /// The text must outlive the lexer.
  explicit Lexer(std::string_view text) : text_(text) {}

  /// All tokens; the last one is kEnd, at the end of the text.
  std::vector<Token> Tokens();

 private:
  Token Next();
  Token Word();
  Token Bracketed();
  Token Text(char quote);
  Token Date();
  Token Number();
  Token Hexadecimal();
  Token Symbol();
  Token Make(TokenKind kind, std::size_t start) const;
  char Peek(std::size_t ahead = 0) const;
  bool HexadecimalAhead() const;
  [[noreturn]] void Fail(std::size_t start, std::size_t length, const char* message) const;

  std::string_view text_;
  std::size_t at_ = 0;
  bool behindOperand_ = false;  // tells a & before a name from the &H of a number
};

}  // namespace velmar::jet
