#include "platform/jet/TokenReader.h"

#include <algorithm>
#include <utility>

#include "platform/jet/Keywords.h"
#include "platform/jet/SyntaxFailure.h"

namespace velmar::jet {
TokenReader::TokenReader(std::string_view text, std::vector<Token> tokens)
    : text_(text), tokens_(std::move(tokens)) {}

const Token& TokenReader::Peek(std::size_t ahead) const {
  return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
}

const Token& TokenReader::Take() {
  const Token& token = Peek();
  if (token.kind != TokenKind::kEnd) ++at_;
  return token;
}

bool TokenReader::Is(std::string_view word, std::size_t ahead) const {
  const Token& token = Peek(ahead);
  return (token.kind == TokenKind::kName || token.kind == TokenKind::kSymbol) && EqualWord(token.text, word);
}

bool TokenReader::IsAny(std::initializer_list<std::string_view> words, std::size_t ahead) const {
  return std::any_of(words.begin(), words.end(),
                     [this, ahead](std::string_view word) { return Is(word, ahead); });
}

bool TokenReader::Accept(std::string_view word) {
  if (!Is(word)) return false;
  Take();
  return true;
}

void TokenReader::Expect(std::string_view word) {
  if (!Accept(word)) FailExpected(word);
}

bool TokenReader::IsName(std::size_t ahead) const {
  const Token& token = Peek(ahead);
  return token.kind == TokenKind::kBracketed || (token.kind == TokenKind::kName && !IsReserved(token.text));
}

std::string TokenReader::ExpectName(std::string_view what) {
  if (IsName()) return Take().text;
  if (Peek().kind == TokenKind::kName) {
    Fail("Se esperaba " + std::string(what) + "; una palabra reservada como nombre va entre corchetes",
         Peek().span);
  }
  FailExpected(what);
}

std::string TokenReader::ExpectMember(std::string_view what) {
  if (Peek().kind != TokenKind::kName && Peek().kind != TokenKind::kBracketed) FailExpected(what);
  return Take().text;
}

std::string TokenReader::ExpectCount(std::string_view what) {
  const Token& token = Peek();
  const bool whole = token.kind == TokenKind::kNumber && token.text.size() <= 9 &&
                     token.text.find_first_not_of("0123456789") == std::string::npos;
  if (!whole) FailExpected(what);
  return Take().text;
}

TextSpan TokenReader::SpanFrom(std::size_t start) const {
  const TextSpan last = at_ == 0 ? TextSpan{} : tokens_[at_ - 1].span;
  const std::size_t end = last.offset + last.length;
  return {start, end > start ? end - start : 0};
}

void TokenReader::FailExpected(std::string_view what) const {
  Fail("Error de sintaxis: se esperaba " + std::string(what), Peek().span);
}

void TokenReader::Fail(const std::string& message, TextSpan span) const {
  throw FailureAt(text_, span, message);
}

TokenReader::Nesting::Nesting(TokenReader& reader) : reader_(reader) {
  if (reader_.depth_ >= kMostNesting) {
    reader_.Fail(
        "La consulta está anidada en demasiados niveles; el máximo es " + std::to_string(kMostNesting),
        reader_.Peek().span);
  }
  ++reader_.depth_;
}

}  // namespace velmar::jet
