#pragma once

#include <cstddef>
#include <optional>

#include "platform/jet/ExpressionParser.h"
#include "platform/jet/TokenReader.h"
#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Reads SELECT and the parts that other statements share with it: tables, joins, lists.
class QueryParser {
 public:
  /// The reader must outlive the parser.
  explicit QueryParser(TokenReader& reader);

  /// Reads a SELECT with its UNIONs and its order. Where `into` is given, the first SELECT may name a target,
  /// which goes there.
  Query ParseQuery(std::optional<TableName>* into = nullptr);
  /// Reads a table, a derived table or a join.
  TableSource ParseSource();
  /// Reads a FROM list, with the IN clause that gives its tables another database.
  std::vector<TableSource> ParseFrom();
  /// Reads a table's name with the database in front of it.
  TableName ParseTableName();
  /// Reads IN 'path', if it is there, as the database of a table that has none.
  void ParseInDatabase(TableName& name);
  Expression ParseExpression() { return expressions_.Parse(); }
  std::optional<Expression> ParseWhere();

 private:
  void ParseMembers(Query& query, std::optional<TableName>* into);
  Select ParseSelect(std::optional<TableName>* into);
  void RefuseStars(const Select& select);
  void ParsePredicate(Select& select);
  SelectItem ParseItem();
  TableSource ParseJoined(TableSource left, std::size_t start);
  TableSource ParseOperand();
  TableSource ParseParenthesised();
  std::optional<JoinKind> AcceptJoin();
  std::string ParseAlias();
  std::optional<std::pair<std::string, TextSpan>> AcceptInDatabase();

  TokenReader& reader_;
  ExpressionParser expressions_;
  int joins_ = 0;
};

}  // namespace velmar::jet
