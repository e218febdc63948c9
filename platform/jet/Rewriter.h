#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Turns what only Jet can say into what both dialects can, tree to tree:
/// - joins are flattened (JoinFlattener), and a FROM with two tables of one name is refused;
/// - a SELECT from one table without an order gets that of its rows;
/// - a SELECT of a UNION with a TOP of its own becomes a derived table;
/// - a DELETE through a derived table or a join becomes one by the rows' places;
/// - DISTINCTROW becomes a grouping by the places of the rows shown;
/// - First and Last from one table learn the rows' places.
class Rewriter {
 public:
  /// The text, for failures, must outlive the rewriter.
  explicit Rewriter(std::string_view jetText) : jetText_(jetText) {}

  void Rewrite(Statement& statement);

 private:
  void RewriteQuery(Query& query, bool orderMatters);
  void RewriteSelect(Select& select);
  void RewriteSource(TableSource& source);
  void RewriteExpression(Expression& expression);
  void RewriteAll(std::vector<Expression>& expressions);
  void RewriteOptional(std::optional<Expression>& expression);
  void RewriteDistinctRow(Select& select);
  void RewriteDelete(DeleteStatement& statement);
  std::unique_ptr<Query> RowsOfDerived(DeleteStatement& statement, const NamedTable& table);
  void GivePlaces(Expression& expression, const std::string& table);

  std::string_view jetText_;
};

}  // namespace velmar::jet
