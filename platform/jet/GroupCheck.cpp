#include "platform/jet/GroupCheck.h"

#include <algorithm>
#include <string>

#include "platform/jet/FunctionTable.h"
#include "platform/jet/SyntaxFailure.h"
#include "platform/jet/TypeOf.h"
#include "platform/text/Case.h"

namespace velmar::jet {
namespace {

// The text of an expression without blanks and case, so that two spellings of one expression are equal.
std::string Normal(std::string_view jetText, const Expression& expression) {
  std::string normal = text::FoldCase(jetText.substr(expression.span.offset, expression.span.length));
  std::erase_if(normal, [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
  while (normal.size() > 2 && normal.front() == '(' && normal.find(')') == normal.size() - 1) {
    normal = normal.substr(1, normal.size() - 2);
  }
  return normal;
}

bool IsSame(std::string_view jetText, const Expression& a, const Expression& b) {
  const auto* nameA = std::get_if<ColumnName>(&a.node);
  const auto* nameB = std::get_if<ColumnName>(&b.node);
  if (nameA == nullptr || nameB == nullptr) return Normal(jetText, a) == Normal(jetText, b);
  return text::FoldCase(nameA->column) == text::FoldCase(nameB->column) &&
         (nameA->table.empty() || nameB->table.empty() ||
          text::FoldCase(nameA->table) == text::FoldCase(nameB->table));
}

bool IsShownAs(const Select& select, const Expression& expression) {
  const auto* name = std::get_if<ColumnName>(&expression.node);
  return name != nullptr && name->table.empty() &&
         std::any_of(select.items.begin(), select.items.end(), [name](const SelectItem& item) {
           return text::FoldCase(item.alias) == text::FoldCase(name->column);
         });
}

enum class Clause { kListOrHaving, kOrder };

void Check(std::string_view jetText, const Select& select, const Expression& expression, Clause clause) {
  if (const auto* call = std::get_if<Call>(&expression.node)) {
    const Function* function = FindFunction(call->function);
    if (function != nullptr && IsAggregate(*function)) return;
  }
  const bool grouped = std::any_of(select.groupBy.begin(), select.groupBy.end(),
                                   [&](const Expression& key) { return IsSame(jetText, expression, key); });
  // In ORDER BY a name may be that of an output, which is checked where it stands.
  if (grouped || (clause == Clause::kOrder && IsShownAs(select, expression))) return;
  if (IsBareColumn(expression)) {
    throw FailureAt(jetText, expression.span,
                    "El campo no está en GROUP BY ni dentro de una función de grupo como Sum o First");
  }
  for (const Expression& operand : OperandsOf(expression)) Check(jetText, select, operand, clause);
}

void Check(std::string_view jetText, const Select& select) {
  for (const SelectItem& item : select.items) {
    if (item.star)
      throw FailureAt(jetText, item.span, "Una consulta con grupos no puede mostrar todos los campos con *");
    Check(jetText, select, *item.expression, Clause::kListOrHaving);
  }
  if (select.having) Check(jetText, select, *select.having, Clause::kListOrHaving);
}

}  // namespace

void RefuseUngrouped(std::string_view jetText, const Query& query) {
  for (const Select& member : query.members) {
    if (FormsGroups(member)) Check(jetText, member);
  }
  // The order of a UNION knows nothing but its outputs.
  if (query.members.size() > 1 || !FormsGroups(query.members[0])) return;
  for (const OrderItem& item : query.orderBy) {
    Check(jetText, query.members[0], item.expression, Clause::kOrder);
  }
}

}  // namespace velmar::jet
