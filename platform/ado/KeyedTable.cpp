#include "platform/ado/KeyedTable.h"

#include "platform/ado/Session.h"
#include "platform/ado/Statement.h"
#include "platform/ado/TableNames.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Lexer.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

using velmar::jet::Token;
using velmar::jet::TokenKind;

bool IsName(const Token& token) {
  return token.kind == TokenKind::kName || token.kind == TokenKind::kBracketed;
}

bool IsWord(const Token& token, std::string_view word) {
  return token.kind == TokenKind::kName && SameName(token.text, word);
}

bool IsSymbol(const Token& token, std::string_view symbol) {
  return token.kind == TokenKind::kSymbol && token.text == symbol;
}

bool IsWordOf(const Token& token, std::initializer_list<std::string_view> words) {
  for (const std::string_view word : words) {
    if (IsWord(token, word)) return true;
  }
  return false;
}

/// The shape "SELECT [TOP n] list FROM table [[AS] alias] [WHERE …] [ORDER BY …]".
struct PlainSelect {
  std::size_t listStart = 0;
  std::size_t fromStart = 0;
  std::string table;
};

std::optional<PlainSelect> PlainSelectOf(const std::vector<Token>& tokens) {
  std::size_t at = 0;
  if (!IsWord(tokens[at++], "SELECT")) return std::nullopt;
  if (IsWordOf(tokens[at], {"DISTINCT", "DISTINCTROW"})) return std::nullopt;
  if (IsWord(tokens[at], "ALL")) ++at;
  if (IsWord(tokens[at], "TOP") && tokens[at + 1].kind == TokenKind::kNumber) {
    at += 2;
    if (IsWord(tokens[at], "PERCENT")) ++at;
  }
  PlainSelect select;
  select.listStart = tokens[at].span.offset;
  int depth = 0;
  for (; !(depth == 0 && IsWord(tokens[at], "FROM")); ++at) {
    if (tokens[at].kind == TokenKind::kEnd) return std::nullopt;
    if (IsSymbol(tokens[at], "(")) ++depth;
    if (IsSymbol(tokens[at], ")")) --depth;
  }
  select.fromStart = tokens[at].span.offset;
  if (!IsName(tokens[++at])) return std::nullopt;
  select.table = tokens[at++].text;
  if (IsWord(tokens[at], "AS")) ++at;
  if (IsName(tokens[at]) && !IsWordOf(tokens[at], {"WHERE", "ORDER", "GROUP", "HAVING", "UNION", "INNER",
                                                   "LEFT", "RIGHT", "JOIN", "IN"})) {
    ++at;
  }
  if (!IsWordOf(tokens[at], {"WHERE", "ORDER"}) && !IsSymbol(tokens[at], ";") &&
      tokens[at].kind != TokenKind::kEnd) {
    return std::nullopt;
  }
  for (depth = 0; tokens[at].kind != TokenKind::kEnd; ++at) {
    if (IsSymbol(tokens[at], "(")) ++depth;
    if (IsSymbol(tokens[at], ")")) --depth;
    if (depth == 0 && IsWordOf(tokens[at], {"GROUP", "HAVING", "UNION"})) return std::nullopt;
  }
  return select;
}

}  // namespace

std::optional<KeyedTable> KeyedTable::Of(Session& session, const std::string& text,
                                         const velmar::jet::Translation& translation) {
  const auto shape = PlainSelectOf(velmar::jet::Lexer(text).Tokens());
  if (!shape) return std::nullopt;
  KeyedTable keyed;
  const Statement select(session.Engine(), translation.sql, &translation);
  for (int column = 0; column < select.ColumnCount(); ++column) {
    const std::string table = select.OriginTable(column);
    if (!SameName(table, shape->table)) return std::nullopt;
    keyed.table = table;
    keyed.columns.push_back(select.OriginColumn(column));
  }
  keyed.keys = text.substr(0, shape->listStart) + "[_rowid_] " + text.substr(shape->fromStart);
  return keyed;
}

std::string SelectOf(std::string_view source) {
  const std::vector<Token> tokens = velmar::jet::Lexer(source).Tokens();
  const bool table = tokens.size() == 2 && IsName(tokens.front());
  return (table ? "SELECT * FROM " : "") + std::string(source);
}

}  // namespace ADODB
