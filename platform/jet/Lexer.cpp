#include "platform/jet/Lexer.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "platform/jet/Dates.h"
#include "platform/jet/Keywords.h"
#include "platform/jet/SyntaxFailure.h"
#include "platform/text/Characters.h"

namespace velmar::jet {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsHexDigit(char c) {
  return IsDigit(c) || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f');
}

bool StartsName(char c) {
  return ((c | 0x20) >= 'a' && (c | 0x20) <= 'z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

bool ContinuesName(char c) {
  return StartsName(c) || IsDigit(c) || c == '$';
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

}  // namespace

std::vector<Token> Lexer::Tokens() {
  if (!text::IsValid(text_)) Fail(0, 0, "El texto de la consulta no es UTF-8 válido");
  std::vector<Token> tokens;
  do {
    tokens.push_back(Next());
    const Token& token = tokens.back();
    const bool keyword = token.kind == TokenKind::kName && IsReserved(token.text) && !IsValueWord(token.text);
    behindOperand_ = token.kind == TokenKind::kSymbol ? token.text == ")" : !keyword;
  } while (tokens.back().kind != TokenKind::kEnd);
  return tokens;
}

Token Lexer::Next() {
  while (at_ < text_.size() && IsBlank(text_[at_])) ++at_;
  const char c = Peek();
  if (at_ == text_.size()) return Make(TokenKind::kEnd, at_);
  if (StartsName(c)) return Word();
  if (c == '[') return Bracketed();
  if (c == '\'' || c == '"') return Text(c);
  if (c == '#') return Date();
  if (IsDigit(c) || (c == '.' && IsDigit(Peek(1)) && !behindOperand_)) return Number();
  if (c == '&' && !behindOperand_ && HexadecimalAhead()) return Hexadecimal();
  return Symbol();
}

Token Lexer::Word() {
  const std::size_t start = at_;
  while (at_ < text_.size() && ContinuesName(text_[at_])) ++at_;
  Token token = Make(TokenKind::kName, start);
  token.text = text_.substr(start, at_ - start);
  return token;
}

Token Lexer::Bracketed() {
  const std::size_t start = at_;
  const std::size_t close = text_.find(']', at_);
  if (close == std::string_view::npos) Fail(start, 1, "Falta el corchete de cierre de un nombre");
  at_ = close + 1;
  Token token = Make(TokenKind::kBracketed, start);
  token.text = text_.substr(start + 1, close - start - 1);
  if (token.text.empty()) Fail(start, 2, "Los corchetes no contienen ningún nombre");
  if (token.text.find('\0') != std::string::npos) {
    Fail(start, at_ - start, "Un nombre no puede contener el carácter nulo");
  }
  return token;
}

Token Lexer::Text(char quote) {
  const std::size_t start = at_++;
  std::string value;
  for (;;) {
    const std::size_t close = text_.find(quote, at_);
    if (close == std::string_view::npos) Fail(start, 1, "Falta la comilla de cierre de un texto");
    value += text_.substr(at_, close - at_);
    at_ = close + 1;
    if (Peek() != quote) break;
    value += quote;
    ++at_;
  }
  Token token = Make(TokenKind::kText, start);
  token.text = std::move(value);
  if (token.text.find('\0') != std::string::npos) {
    Fail(start, at_ - start, "Un texto no puede contener el carácter nulo");
  }
  return token;
}

Token Lexer::Date() {
  const std::size_t start = at_;
  const std::size_t close = text_.find('#', at_ + 1);
  if (close == std::string_view::npos) Fail(start, 1, "Falta el signo # de cierre de una fecha");
  const auto date = ParseDate(text_.substr(start + 1, close - start - 1), DayOrder::kMonthFirst);
  at_ = close + 1;
  if (!date) Fail(start, at_ - start, "La fecha no es válida: escriba #mes/día/año# o #año-mes-día#");
  Token token = Make(TokenKind::kDate, start);
  token.date = *date;
  return token;
}

Token Lexer::Number() {
  const std::size_t start = at_;
  const auto skipDigits = [this] {
    while (IsDigit(Peek())) ++at_;
  };
  skipDigits();
  if (Peek() == '.') {
    ++at_;
    skipDigits();
  }
  if ((Peek() | 0x20) == 'e') {
    const std::size_t sign = Peek(1) == '+' || Peek(1) == '-' ? 2 : 1;
    if (IsDigit(Peek(sign))) {
      at_ += sign;
      skipDigits();
    }
  }
  if (StartsName(Peek())) Fail(start, at_ - start + 1, "Un número va seguido de letras");
  Token token = Make(TokenKind::kNumber, start);
  token.text = text_.substr(start, at_ - start);
  if (token.text.front() == '.') token.text.insert(0, 1, '0');
  if (token.text.back() == '.') token.text += '0';
  double value = 0;
  const auto result = std::from_chars(token.text.data(), token.text.data() + token.text.size(), value);
  if (result.ec != std::errc{} || !std::isfinite(value)) {
    Fail(start, at_ - start,
         "El número es demasiado grande o demasiado pequeño: su exponente va de -307 a 308");
  }
  return token;
}

bool Lexer::HexadecimalAhead() const {
  return (Peek(1) | 0x20) == 'h' && IsHexDigit(Peek(2));
}

Token Lexer::Hexadecimal() {
  const std::size_t start = at_;
  at_ += 2;
  while (IsHexDigit(Peek())) ++at_;
  std::uint32_t value = 0;
  const auto digits = text_.substr(start + 2, at_ - start - 2);
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (result.ec != std::errc{} || ContinuesName(Peek())) {
    Fail(start, at_ - start, "El número hexadecimal no es válido: admite hasta 8 cifras");
  }
  Token token = Make(TokenKind::kNumber, start);
  // As in the language's own constants: up to four digits are a 16-bit number, more a 32-bit one, with sign.
  token.text = value <= 0xFFFFU ? std::to_string(static_cast<std::int16_t>(value))
                                : std::to_string(static_cast<std::int32_t>(value));
  return token;
}

Token Lexer::Symbol() {
  static constexpr std::array<std::array<std::string_view, 2>, 6> kDouble{
      {{"<>", "<>"}, {"><", "<>"}, {"<=", "<="}, {"=<", "<="}, {">=", ">="}, {"=>", ">="}}};
  const auto two = text_.substr(at_, 2);
  if (two == "--" || two == "/*") Fail(at_, 2, "El lenguaje no admite comentarios");
  const std::size_t start = at_;
  for (const auto& [written, usual] : kDouble) {
    if (two != written) continue;
    at_ += 2;
    Token token = Make(TokenKind::kSymbol, start);
    token.text = usual;
    return token;
  }
  if (std::string_view("+-*/\\^&=<>(),.;").find(text_[at_]) == std::string_view::npos) {
    Fail(at_, 1, text_[at_] == ']' ? "Sobra un corchete de cierre" : "Carácter inesperado");
  }
  ++at_;
  Token token = Make(TokenKind::kSymbol, start);
  token.text = text_.substr(start, 1);
  return token;
}

Token Lexer::Make(TokenKind kind, std::size_t start) const {
  Token token;
  token.kind = kind;
  token.span = {start, at_ - start};
  return token;
}

char Lexer::Peek(std::size_t ahead) const {
  return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
}

void Lexer::Fail(std::size_t start, std::size_t length, const char* message) const {
  throw FailureAt(text_, {start, length}, message);
}

}  // namespace velmar::jet
