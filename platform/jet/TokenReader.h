#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/Token.h"

namespace velmar::jet {

/// Walks over the tokens of one text: looking ahead, taking what is expected, failing with the place.
class TokenReader {
 public:
  /// The text must outlive the reader.
  TokenReader(std::string_view text, std::vector<Token> tokens);

  const Token& Peek(std::size_t ahead = 0) const;
  const Token& Take();

  /// True if the token there is this bare word (any case) or this sign.
  bool Is(std::string_view word, std::size_t ahead = 0) const;
  bool IsAny(std::initializer_list<std::string_view> words, std::size_t ahead = 0) const;
  /// Takes the token if it is the word or sign.
  bool Accept(std::string_view word);
  /// Takes the word or sign; fails with "se esperaba …" if it is not there.
  void Expect(std::string_view word);
  /// Takes a name: bracketed, or a bare word that is not reserved. `what` names it in the failure.
  std::string ExpectName(std::string_view what);
  /// Takes a name behind a point, where every word is one.
  std::string ExpectMember(std::string_view what);
  bool IsName(std::size_t ahead = 0) const;
  /// Takes a whole number without a sign.
  std::string ExpectCount(std::string_view what);

  /// From the token that starts at `start` to the last one taken.
  TextSpan SpanFrom(std::size_t start) const;
  std::size_t Offset() const { return Peek().span.offset; }

  [[noreturn]] void FailExpected(std::string_view what) const;
  [[noreturn]] void Fail(const std::string& message, TextSpan span) const;

  /// Counts the nesting of what is being read; fails beyond what the machine's stack and the engine bear.
  class Nesting {
   public:
    explicit Nesting(TokenReader& reader);
    ~Nesting() { --reader_.depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

   private:
    TokenReader& reader_;
  };

  static constexpr int kMostNesting = 400;

 private:
  std::string_view text_;
  std::vector<Token> tokens_;
  std::size_t at_ = 0;
  int depth_ = 0;
};

}  // namespace velmar::jet
