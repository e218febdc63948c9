#include "platform/jet/Translation.h"

#include <algorithm>

#include "platform/jet/Lexer.h"
#include "platform/jet/NameMap.h"
#include "platform/jet/Parser.h"
#include "platform/jet/Rewriter.h"
#include "platform/jet/SqlWriter.h"
#include "platform/jet/StatementEmitter.h"
#include "platform/text/CodePoints.h"

namespace velmar::jet {

std::optional<TextSpan> Translation::SourceOf(std::size_t sqlOffset) const {
  const auto behind =
      std::upper_bound(spots.begin(), spots.end(), sqlOffset,
                       [](std::size_t offset, const SourceSpot& spot) { return offset < spot.sqlOffset; });
  if (behind == spots.begin()) return std::nullopt;
  return std::prev(behind)->span;
}

Translation Translate(std::string_view jetText, const AliasLookup& aliases, const NameMap* names) {
  Statement statement = Parser(jetText).Parse();
  Rewriter(jetText).Rewrite(statement);
  return StatementEmitter(jetText, names, aliases).Emit(statement);
}

bool NeedsNameMap(std::string_view jetText) {
  if (text::IsAscii(jetText)) return false;
  const auto tokens = Lexer(jetText).Tokens();
  return std::any_of(tokens.begin(), tokens.end(), [](const Token& token) {
    return (token.kind == TokenKind::kName || token.kind == TokenKind::kBracketed) &&
           !text::IsAscii(token.text);
  });
}

std::string CreateTableText(const TargetTable& target, const std::vector<OutputColumn>& columns) {
  std::string sql = "CREATE TABLE " + QualifiedName(target.alias, target.table) + " (";
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (i > 0) sql += ", ";
    sql += QuoteIdentifier(columns[i].name);
    if (!columns[i].type.empty()) sql += " " + columns[i].type;
    sql += " COLLATE JET";
  }
  return sql + ")";
}

std::string InsertText(const TargetTable& target, const std::vector<std::string>& columns,
                       std::string_view selectSql) {
  std::string sql = "INSERT INTO " + QualifiedName(target.alias, target.table) + " ";
  for (std::size_t i = 0; i < columns.size(); ++i) {
    sql += i == 0 ? "(" : ", ";
    sql += QuoteIdentifier(columns[i]);
  }
  if (!columns.empty()) sql += ") ";
  return sql.append(selectSql);
}

}  // namespace velmar::jet
