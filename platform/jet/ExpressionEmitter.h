#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/jet/FunctionTable.h"
#include "platform/jet/SqlWriter.h"
#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Writes expressions, one routine a node. A value that the engine could not tell from text carries the
/// collation where it is compared; tests stay bare where only their truth counts, so that indexes serve them,
/// and give -1 and 0 where they are values.
class ExpressionEmitter {
 public:
  using QueryWriter = std::function<void(const Query&)>;

  /// All must outlive the emitter. `writeQuery` writes a subquery without its parentheses.
  ExpressionEmitter(std::string_view jetText, SqlWriter& writer, QueryWriter writeQuery)
      : jetText_(jetText), writer_(writer), writeQuery_(std::move(writeQuery)) {}

  /// The expression as a value.
  void Value(const Expression& expression);
  /// The expression where only its truth counts.
  void Condition(const Expression& expression);
  /// The value, with the collation where it may be text and is not a plain column.
  void Collated(const Expression& expression);

  /// Whether aggregates may stand where is being written; gives what was so before.
  bool AllowAggregates(bool allowed) { return std::exchange(aggregatesAllowed_, allowed); }

 private:
  void Emit(const NullLiteral&, const Expression&);
  void Emit(const NumberLiteral& number, const Expression&);
  void Emit(const TextLiteral& literal, const Expression&);
  void Emit(const DateLiteral& literal, const Expression&);
  void Emit(const BooleanLiteral& literal, const Expression&);
  void Emit(const ColumnName& name, const Expression& expression);
  void Emit(const RowPlace& place, const Expression&);
  void Emit(const Call& call, const Expression& expression);
  void Emit(const Operation& operation, const Expression& expression);
  void Emit(const Subquery& subquery, const Expression&);
  template <typename Node>
  void Emit(const Node&, const Expression& expression);

  void Test(const Operation& operation, const Expression&);
  void Test(const Comparison& comparison, const Expression&);
  void Test(const LikeTest& test, const Expression&);
  void Test(const BetweenTest& test, const Expression&);
  void Test(const InTest& test, const Expression&);
  void Test(const NullTest& test, const Expression&);
  void Test(const ExistsTest& test, const Expression&);
  void Test(const Call& call, const Expression&);
  template <typename Node>
  void Test(const Node&, const Expression& expression);

  void Chain(std::string_view word, const std::vector<Expression>& operands, std::size_t first,
             std::size_t last);
  void Parenthesised(const Expression& condition);
  void NotOperand(const Expression& condition);
  void Left(const Expression& left, bool otherIsColumn);
  void Quantified(const Comparison& comparison);
  void Choice(const Call& call, const Expression& expression);
  void Aggregate(const Function& function, const Call& call, const Expression& expression);
  void EngineCall(std::string_view name, const std::vector<Expression>& arguments);
  void Joined(std::string_view function, const std::vector<Expression>& operands, std::size_t first,
              std::size_t last);
  void AsText(const Expression& operand);
  void CheckArguments(const Function& function, const Call& call, const Expression& expression);
  void CheckTypes(const Expression& left, const Expression& right);

  std::string_view jetText_;
  SqlWriter& writer_;
  QueryWriter writeQuery_;
  bool aggregatesAllowed_ = false;
};

}  // namespace velmar::jet
