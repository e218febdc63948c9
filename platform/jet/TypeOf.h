#pragma once

#include "platform/jet/Tree.h"
#include "platform/jet/ValueType.h"

namespace velmar::jet {

/// The type of an expression's values as far as its form fixes it.
ValueType TypeOf(const Expression& expression);

/// True for a column's name and nothing more.
bool IsBareColumn(const Expression& expression);

/// True for forms that are true or false: tests and the logical operators.
bool IsCondition(const Expression& expression);

/// True if the expression calls an aggregate, subqueries left aside.
bool HasAggregate(const Expression& expression);

/// True if the SELECT forms groups: GROUP BY, or an aggregate in its list or its HAVING.
bool FormsGroups(const Select& select);

/// Every expression directly below this one. Subqueries are not entered.
const std::vector<Expression>& OperandsOf(const Expression& expression);

}  // namespace velmar::jet
