#include "platform/jet/JoinFlattener.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/jet/TableNames.h"
#include "platform/jet/TypeOf.h"
#include "platform/text/Case.h"

namespace velmar::jet {
namespace {

struct Link {
  JoinKind kind = JoinKind::kInner;
  TableSource table;
  std::optional<Expression> on;
  std::set<std::string> names;
};

// A join of several tables from left to right; the first link has neither kind nor condition of its own.
using Chain = std::vector<Link>;

void TakeApart(TableSource source, Chain& chain) {
  auto* join = std::get_if<Join>(&source.node);
  Link link;
  if (join != nullptr) {
    TakeApart(std::move(join->operands[0]), chain);
    link.kind = join->kind;
    link.on = std::move(join->on);
    TableSource right = std::move(join->operands[1]);
    link.table = std::move(right);
  } else {
    link.table = std::move(source);
  }
  link.names = ExposedNames(link.table);
  chain.push_back(std::move(link));
}

TableSource Attach(TableSource left, Link link) {
  Join join;
  join.kind = link.kind;
  join.on = std::move(link.on);
  const TextSpan span = left.span;
  join.operands.push_back(std::move(left));
  join.operands.push_back(std::move(link.table));
  return TableSource{span, std::move(join)};
}

// What a condition names: the folded names of tables, and whether all its columns are qualified and it holds
// no subquery, so that nothing else is named.
struct References {
  std::set<std::string> tables;
  bool complete = true;
};

void Collect(const Expression& expression, References& references) {
  if (const auto* name = std::get_if<ColumnName>(&expression.node)) {
    if (name->table.empty()) references.complete = false;
    references.tables.insert(text::FoldCase(name->table));
  }
  const auto* in = std::get_if<InTest>(&expression.node);
  const auto* comparison = std::get_if<Comparison>(&expression.node);
  if (std::holds_alternative<Subquery>(expression.node) ||
      std::holds_alternative<ExistsTest>(expression.node) || (in != nullptr && in->query) ||
      (comparison != nullptr && comparison->query)) {
    references.complete = false;
  }
  for (const Expression& operand : OperandsOf(expression)) Collect(operand, references);
}

References ReferencesOf(const std::optional<Expression>& condition) {
  References references;
  if (condition) Collect(*condition, references);
  return references;
}

bool NamesColumnOf(const Expression& expression, const std::set<std::string>& tables) {
  const auto* name = std::get_if<ColumnName>(&expression.node);
  return name != nullptr && tables.contains(text::FoldCase(name->table));
}

// True if the condition cannot hold where every column of these tables is NULL.
bool RejectsNull(const Expression& condition, const std::set<std::string>& tables) {
  if (const auto* comparison = std::get_if<Comparison>(&condition.node)) {
    return std::any_of(comparison->operands.begin(), comparison->operands.end(),
                       [&tables](const Expression& side) { return NamesColumnOf(side, tables); });
  }
  const auto* operation = std::get_if<Operation>(&condition.node);
  return operation != nullptr && operation->symbol == Operator::kAnd &&
         std::any_of(operation->operands.begin(), operation->operands.end(),
                     [&tables](const Expression& part) { return RejectsNull(part, tables); });
}

bool IsSubset(const std::set<std::string>& part, const std::set<std::string>& whole) {
  return std::includes(whole.begin(), whole.end(), part.begin(), part.end());
}

bool LeftJoinFlattens(const std::set<std::string>& leftNames, const std::optional<Expression>& on,
                      const Chain& right) {
  std::set<std::string> known = leftNames;
  known.insert(right[0].names.begin(), right[0].names.end());
  const References needed = ReferencesOf(on);
  if (!needed.complete || !IsSubset(needed.tables, known)) return false;
  std::set<std::string> before = right[0].names;
  for (std::size_t i = 1; i < right.size(); ++i) {
    if (right[i].kind != JoinKind::kLeft || !right[i].on) return false;
    if (!ReferencesOf(right[i].on).complete || !RejectsNull(*right[i].on, before)) return false;
    before.insert(right[i].names.begin(), right[i].names.end());
  }
  return true;
}

// The first table of the right side behind which an inner join's condition has all that it needs; the number
// of tables if there is none.
std::size_t PlaceOfCondition(const std::set<std::string>& leftNames, const std::optional<Expression>& on,
                             const Chain& right) {
  const References needed = ReferencesOf(on);
  std::set<std::string> known = leftNames;
  for (std::size_t i = 0; i < right.size(); ++i) {
    if (i > 0 && right[i].kind != JoinKind::kInner) return right.size();
    known.insert(right[i].names.begin(), right[i].names.end());
    if (needed.complete ? IsSubset(needed.tables, known) : i + 1 == right.size()) return i;
  }
  return right.size();
}

Expression Conjunction(Expression first, Expression second) {
  Expression both;
  both.span = first.span;
  both.height = std::max(first.height, second.height) + 1;
  Operation operation{Operator::kAnd, {}};
  operation.operands.push_back(std::move(first));
  operation.operands.push_back(std::move(second));
  both.node = std::move(operation);
  return both;
}

TableSource Rebuild(TableSource left, Chain right) {
  for (Link& link : right) left = Attach(std::move(left), std::move(link));
  return left;
}

TableSource AssembleRight(Chain right) {
  TableSource source = std::move(right[0].table);
  right.erase(right.begin());
  return Rebuild(std::move(source), std::move(right));
}

}  // namespace

void FlattenJoins(TableSource& source) {
  auto* join = std::get_if<Join>(&source.node);
  if (join == nullptr) return;
  for (TableSource& operand : join->operands) FlattenJoins(operand);
  if (join->kind == JoinKind::kRight || !std::holds_alternative<Join>(join->operands[1].node)) return;

  const auto leftNames = ExposedNames(join->operands[0]);
  Chain right;
  TakeApart(std::move(join->operands[1]), right);
  const bool hasRightJoin = std::any_of(right.begin() + 1, right.end(),
                                        [](const Link& link) { return link.kind == JoinKind::kRight; });
  std::size_t place = right.size();
  if (!hasRightJoin && join->kind == JoinKind::kInner) {
    place = PlaceOfCondition(leftNames, join->on, right);
  } else if (!hasRightJoin && LeftJoinFlattens(leftNames, join->on, right)) {
    place = 0;
  }
  if (place == right.size()) {
    join->operands[1] = AssembleRight(std::move(right));
    return;
  }
  right[0].kind = join->kind;
  if (place == 0) {
    right[0].on = std::move(join->on);
  } else if (join->on) {
    right[place].on = right[place].on ? Conjunction(std::move(*right[place].on), std::move(*join->on))
                                      : std::move(*join->on);
  }
  source = Rebuild(std::move(join->operands[0]), std::move(right));
}

}  // namespace velmar::jet
