#include "platform/jet/Lexer.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/error/RuntimeError.h"

namespace velmar::jet {
namespace {

std::string Shown(std::string_view text) {
  std::string shown;
  for (const Token& token : Lexer(text).Tokens()) {
    static constexpr std::string_view kLetters = "enbt#ds";
    if (token.kind == TokenKind::kEnd) break;
    const char letter = kLetters[static_cast<std::size_t>(token.kind)];
    shown += letter;
    shown += ':';
    shown += token.kind == TokenKind::kDate ? std::to_string(token.date).substr(0, 7) : token.text;
    shown += ' ';
  }
  return shown;
}

struct Row {
  std::string_view text;
  std::string_view tokens;
};

TEST(Lexer, CutsTokens) {
  for (const Row& row : {
           Row{"Año=[Año 2]", "n:Año s:= b:Año 2 "},
           Row{"a&Hola", "n:a s:& n:Hola "},
           Row{"a & &H10", "n:a s:& #:16 "},
           Row{"SELECT &H8000,&H7fffffff,&HFFFFFFFF", "n:SELECT #:-32768 s:, #:2147483647 s:, #:-1 "},
           Row{"1.5e-3+.5+5.+10", "#:1.5e-3 s:+ #:0.5 s:+ #:5.0 s:+ #:10 "},
           Row{"1e308 1E-300 0e999", "#:1e308 #:1E-300 #:0e999 "},
           Row{"t.5", "n:t s:. #:5 "},
           Row{"'a''b' \"c\"\"'d\" ''", "t:a'b t:c\"'d t: "},
           Row{"a=>b =<c ><d", "n:a s:>= n:b s:<= n:c s:<> n:d "},
           Row{"#1/31/2024# #2024-01-31 06:00:00 PM#", "d:45322.0 d:45322.7 "},
           Row{"Left$(x)", "n:Left$ s:( n:x s:) "},
           Row{"[a'b\"c;--d]", "b:a'b\"c;--d "},
       }) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(row.tokens, Shown(row.text));
  }
}

struct BadRow {
  std::string_view text;
  std::size_t offset;
  std::size_t length;
};

TEST(Lexer, RefusesWithThePlace) {
  for (const BadRow& row :
       {BadRow{"ñ 'abc", 3, 1}, BadRow{"[]", 0, 2}, BadRow{"a ] b", 2, 1}, BadRow{"a -- b", 2, 2},
        BadRow{"/* a */", 0, 2}, BadRow{"#31/31/2024#", 0, 12}, BadRow{"#1/1/2024", 0, 1},
        BadRow{"12ab", 0, 3}, BadRow{"ñ 1e400 b", 3, 5}, BadRow{"x = &H123456789", 4, 11},
        BadRow{"a ? b", 2, 1}, BadRow{"\"a'", 0, 1}, BadRow{std::string_view("[a\0b]", 5), 0, 5}}) {
    SCOPED_TRACE(row.text);
    try {
      Lexer(row.text).Tokens();
      ADD_FAILURE() << "accepted";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(3075, error.Number());
      ASSERT_TRUE(error.Span().has_value());
      EXPECT_EQ(row.offset, error.Span()->offset);
      EXPECT_EQ(row.length, error.Span()->length);
    }
  }
}

TEST(Lexer, RefusesBytesThatAreNoText) {
  EXPECT_THROW(Lexer("SELECT '\xC3'").Tokens(), RuntimeError);
}

}  // namespace
}  // namespace velmar::jet
