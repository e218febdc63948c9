#include "platform/ado/KeyedTable.h"

#include <charconv>
#include <utility>

#include "platform/ado/Session.h"
#include "platform/ado/Statement.h"
#include "platform/ado/TableNames.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Keywords.h"
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
  std::size_t tail = 0;  ///< the token behind the table
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
  select.tail = at;
  for (depth = 0; tokens[at].kind != TokenKind::kEnd; ++at) {
    if (IsSymbol(tokens[at], "(")) ++depth;
    if (IsSymbol(tokens[at], ")")) --depth;
    if (depth == 0 && IsWordOf(tokens[at], {"GROUP", "HAVING", "UNION"})) return std::nullopt;
  }
  return select;
}

/// Puts the table's own columns in the place of the numbers and names of output columns: the key query has
/// the conditions and the order of the SELECT, but not its list.
class KeyText {
 public:
  KeyText(const std::vector<Token>& tokens, const Statement& select, const KeyedTable& keyed,
          std::vector<std::string> tableColumns)
      : tokens_(tokens), select_(select), keyed_(keyed), tableColumns_(std::move(tableColumns)) {}

  /// Nothing if a name or number cannot be replaced.
  std::optional<std::string> Of(const std::string& text, const PlainSelect& shape) {
    std::string keys = text.substr(0, shape.listStart) + "[_rowid_] ";
    std::size_t copied = shape.fromStart;
    for (std::size_t at = shape.tail; tokens_[at].kind != TokenKind::kEnd; ++at) {
      if (IsSymbol(tokens_[at], "(")) ++depth_;
      if (IsSymbol(tokens_[at], ")")) --depth_;
      ordered_ = ordered_ || (depth_ == 0 && IsWord(tokens_[at], "ORDER"));
      const auto column = OutputOf(at);
      if (!column) continue;
      const std::string& name = keyed_.columns[*column];
      if (!replaceable_ || name.find(']') != std::string::npos) return std::nullopt;
      const velmar::TextSpan span = tokens_[at].span;
      keys += text.substr(copied, span.offset - copied) + '[' + name + ']';
      copied = span.offset + span.length;
    }
    return keys + text.substr(copied);
  }

 private:
  /// The output column that the token means; nothing if it means something else.
  std::optional<std::size_t> OutputOf(std::size_t at) {
    const Token& token = tokens_[at];
    const bool alone =
        ordered_ && depth_ == 0 && (IsSymbol(tokens_[at - 1], ",") || IsWord(tokens_[at - 1], "BY")) &&
        (IsSymbol(tokens_[at + 1], ",") || IsSymbol(tokens_[at + 1], ";") ||
         IsWordOf(tokens_[at + 1], {"ASC", "DESC"}) || tokens_[at + 1].kind == TokenKind::kEnd);
    replaceable_ = ordered_;
    if (token.kind == TokenKind::kNumber) return NumberedOutput(at, alone);
    if (!IsName(token) || (token.kind == TokenKind::kName && velmar::jet::IsReserved(token.text))) return {};
    if (IsSymbol(tokens_[at - 1], ".") || IsSymbol(tokens_[at + 1], ".") || IsSymbol(tokens_[at + 1], "("))
      return {};
    // The engine looks for a name that is a whole term among the outputs first, for any other among the
    // table's columns.
    if (!alone && FindName(tableColumns_, token.text)) return {};
    std::optional<std::size_t> found;
    for (std::size_t column = 0; column < keyed_.columns.size(); ++column) {
      if (!SameName(select_.ColumnName(static_cast<int>(column)), token.text)) continue;
      if (found && keyed_.columns[*found] != keyed_.columns[column]) replaceable_ = false;
      found = column;
    }
    return found;
  }

  std::optional<std::size_t> NumberedOutput(std::size_t at, bool alone) {
    const std::string& digits = tokens_[at].text;
    const bool bracketed = ordered_ && IsSymbol(tokens_[at - 1], "(") && IsSymbol(tokens_[at + 1], ")");
    if (digits.find_first_not_of("0123456789") != std::string::npos || !(alone || bracketed)) return {};
    std::size_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (number == 0 || number > keyed_.columns.size()) return {};
    // "(1)" is a number of an output column or an argument.
    if (bracketed) replaceable_ = false;
    return number - 1;
  }

  const std::vector<Token>& tokens_;
  const Statement& select_;
  const KeyedTable& keyed_;
  std::vector<std::string> tableColumns_;
  int depth_ = 0;
  bool ordered_ = false;
  bool replaceable_ = true;
};

}  // namespace

std::optional<KeyedTable> KeyedTable::Of(Session& session, const std::string& text,
                                         const velmar::jet::Translation& translation) {
  const std::vector<Token> tokens = velmar::jet::Lexer(text).Tokens();
  const auto shape = PlainSelectOf(tokens);
  if (!shape) return std::nullopt;
  KeyedTable keyed;
  const Statement select(session.Engine(), translation.sql, &translation);
  for (int column = 0; column < select.ColumnCount(); ++column) {
    const std::string table = select.OriginTable(column);
    if (!SameName(table, shape->table)) return std::nullopt;
    keyed.table = table;
    keyed.columns.push_back(select.OriginColumn(column));
  }
  if (!HasRowKeys(session.Engine(), "main", keyed.table)) return std::nullopt;
  const auto keys =
      KeyText(tokens, select, keyed, ColumnNames(session.Engine(), "main", keyed.table)).Of(text, *shape);
  if (!keys) return std::nullopt;
  keyed.keys = *keys;
  return keyed;
}

std::string SelectOf(std::string_view source) {
  const std::vector<Token> tokens = velmar::jet::Lexer(source).Tokens();
  const bool table = tokens.size() == 2 && IsName(tokens.front());
  return (table ? "SELECT * FROM " : "") + std::string(source);
}

}  // namespace ADODB
