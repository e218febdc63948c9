#include "platform/jet/Rewriter.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "platform/jet/FunctionTable.h"
#include "platform/jet/GroupCheck.h"
#include "platform/jet/JoinFlattener.h"
#include "platform/jet/SyntaxFailure.h"
#include "platform/jet/TableNames.h"
#include "platform/jet/TypeOf.h"
#include "platform/text/Case.h"

namespace velmar::jet {
namespace {

// A name that no Jet table can have: Jet names hold no square brackets.
constexpr auto kPlaceColumn = "[fila]";

Expression PlaceIn(const std::string& table) {
  Expression expression;
  expression.node = RowPlace{table};
  return expression;
}

SelectItem Item(Expression expression, std::string alias = {}) {
  SelectItem item;
  item.expression = std::move(expression);
  item.alias = std::move(alias);
  return item;
}

bool EqualName(std::string_view a, std::string_view b) {
  return text::FoldCase(a) == text::FoldCase(b);
}

// The one table that a SELECT reads, if it reads no more.
const NamedTable* OnlyTable(const Select& select) {
  return select.from.size() == 1 ? std::get_if<NamedTable>(&select.from[0].node) : nullptr;
}

// The one table whose rows a derived table gives, if it gives those of one.
const NamedTable* TableBehind(const DerivedTable& derived) {
  const Query& query = *derived.query;
  if (query.members.size() != 1 || query.members[0].distinct || FormsGroups(query.members[0])) return nullptr;
  return OnlyTable(query.members[0]);
}

// True if a rewritten query gives the first rows of its one table, in the table's order.
bool HoldsFirstRows(const Query& query) {
  return query.members[0].top && !query.members[0].where && query.orderBy.size() == 1 &&
         std::holds_alternative<RowPlace>(query.orderBy[0].expression.node);
}

void CollectColumns(const Expression& expression, std::vector<const Expression*>& columns) {
  if (IsBareColumn(expression)) columns.push_back(&expression);
  for (const Expression& operand : OperandsOf(expression)) CollectColumns(operand, columns);
}

std::unique_ptr<Query> QueryOf(Select select) {
  auto query = std::make_unique<Query>();
  query->span = select.span;
  query->members.push_back(std::move(select));
  return query;
}

Select WrapInDerived(Select inner) {
  Select outer;
  outer.span = inner.span;
  SelectItem all;
  all.star = true;
  all.span = inner.span;
  outer.items.push_back(std::move(all));
  DerivedTable derived;
  derived.query = QueryOf(std::move(inner));
  outer.from.push_back(TableSource{outer.span, std::move(derived)});
  return outer;
}

// Up to the last of the rows, which are the first ones of their table: a range instead of a list of places.
std::optional<Expression> PlaceIsUpTo(std::unique_ptr<Query> rows, TextSpan span) {
  Call last;
  last.function = "Max";
  Expression place;
  place.node = ColumnName{{}, kPlaceColumn};
  last.arguments.push_back(std::move(place));
  Expression greatest;
  greatest.node = std::move(last);
  Select select;
  select.span = span;
  select.items.push_back(Item(std::move(greatest)));
  DerivedTable derived;
  derived.query = std::move(rows);
  select.from.push_back(TableSource{span, std::move(derived)});
  Expression limit;
  limit.span = span;
  limit.node = Subquery{QueryOf(std::move(select))};
  Comparison comparison;
  comparison.symbol = "<=";
  comparison.operands.push_back(PlaceIn({}));
  comparison.operands.push_back(std::move(limit));
  Expression expression;
  expression.span = span;
  expression.node = std::move(comparison);
  return expression;
}

std::optional<Expression> PlaceIsAmong(std::unique_ptr<Query> rows, TextSpan span) {
  InTest test;
  test.operands.push_back(PlaceIn({}));
  test.query = std::move(rows);
  Expression expression;
  expression.span = span;
  expression.node = std::move(test);
  return expression;
}

}  // namespace

void Rewriter::Rewrite(Statement& statement) {
  if (auto* select = std::get_if<SelectStatement>(&statement)) {
    RewriteQuery(select->query, true);
  } else if (auto* insert = std::get_if<InsertStatement>(&statement)) {
    if (insert->query) RewriteQuery(*insert->query, true);
    RewriteAll(insert->values);
  } else if (auto* update = std::get_if<UpdateStatement>(&statement)) {
    RewriteSource(update->source);
    RefuseRepeatedNames(jetText_, {&update->source});
    for (Assignment& assignment : update->assignments) RewriteExpression(assignment.value);
    RewriteOptional(update->where);
  } else if (auto* deletion = std::get_if<DeleteStatement>(&statement)) {
    RewriteDelete(*deletion);
  }
}

void Rewriter::RewriteQuery(Query& query, bool orderMatters) {
  RefuseUngrouped(jetText_, query);
  for (Select& member : query.members) {
    if (query.members.size() > 1 && member.top) member = WrapInDerived(std::move(member));
    RewriteSelect(member);
  }
  for (OrderItem& item : query.orderBy) RewriteExpression(item.expression);
  if (query.members.size() > 1 || !query.orderBy.empty()) return;
  const Select& only = query.members[0];
  const NamedTable* table = OnlyTable(only);
  if (table != nullptr && (orderMatters || only.top) && !only.distinct && !FormsGroups(only)) {
    query.orderBy.push_back(OrderItem{PlaceIn(ExposedName(only.from[0])), false});
  }
}

void Rewriter::RewriteSelect(Select& select) {
  std::vector<const TableSource*> sources;
  for (TableSource& source : select.from) {
    RewriteSource(source);
    sources.push_back(&source);
  }
  RefuseRepeatedNames(jetText_, sources);
  for (SelectItem& item : select.items) RewriteOptional(item.expression);
  RewriteOptional(select.where);
  RewriteAll(select.groupBy);
  RewriteOptional(select.having);
  if (OnlyTable(select) != nullptr) {
    const std::string table = ExposedName(select.from[0]);
    for (SelectItem& item : select.items) {
      if (item.expression) GivePlaces(*item.expression, table);
    }
    if (select.having) GivePlaces(*select.having, table);
  }
  if (select.distinctRow) RewriteDistinctRow(select);
}

void Rewriter::RewriteDistinctRow(Select& select) {
  std::set<std::string> all;
  for (const TableSource& source : select.from) all.merge(ExposedNames(source));
  if (all.size() < 2 || FormsGroups(select)) return;

  std::set<std::string> shown;
  for (const SelectItem& item : select.items) {
    if (item.star && item.starTable.empty()) return;
    if (item.star) shown.insert(text::FoldCase(item.starTable));
    if (!item.expression) continue;
    std::vector<const Expression*> columns;
    CollectColumns(*item.expression, columns);
    for (const Expression* column : columns) {
      const auto& name = std::get<ColumnName>(column->node);
      if (name.table.empty()) {
        throw FailureAt(jetText_, column->span,
                        "Con DISTINCTROW y varias tablas, el campo " + name.column +
                            " tiene que llevar delante el nombre de su tabla");
      }
      shown.insert(text::FoldCase(name.table));
    }
  }
  if (shown.size() == all.size() || shown.empty()) return;
  for (const std::string& name : shown) {
    for (const TableSource& source : select.from) {
      if (const NamedTable* table = FindTable(source, name)) {
        select.groupBy.push_back(PlaceIn(table->alias.empty() ? table->name.table : table->alias));
      }
    }
  }
}

void Rewriter::RewriteSource(TableSource& source) {
  if (auto* derived = std::get_if<DerivedTable>(&source.node)) {
    RewriteQuery(*derived->query, false);
  } else if (auto* join = std::get_if<Join>(&source.node)) {
    for (TableSource& operand : join->operands) RewriteSource(operand);
    RewriteOptional(join->on);
    FlattenJoins(source);
  }
}

void Rewriter::RewriteAll(std::vector<Expression>& expressions) {
  for (Expression& expression : expressions) RewriteExpression(expression);
}

void Rewriter::RewriteOptional(std::optional<Expression>& expression) {
  if (expression) RewriteExpression(*expression);
}

void Rewriter::RewriteExpression(Expression& expression) {
  std::visit(
      [this](auto& node) {
        if constexpr (requires { node.operands; }) RewriteAll(node.operands);
        if constexpr (requires { node.arguments; }) RewriteAll(node.arguments);
        if constexpr (requires { node.query; }) {
          if (node.query) RewriteQuery(*node.query, false);
        }
      },
      expression.node);
}

void Rewriter::GivePlaces(Expression& expression, const std::string& table) {
  std::visit(
      [&](auto& node) {
        if constexpr (requires { node.operands; }) {
          for (Expression& operand : node.operands) GivePlaces(operand, table);
        }
        if constexpr (requires { node.arguments; }) {
          for (Expression& argument : node.arguments) GivePlaces(argument, table);
        }
      },
      expression.node);
  auto* call = std::get_if<Call>(&expression.node);
  if (call == nullptr || call->arguments.size() != 1) return;
  const Function* function = FindFunction(call->function);
  if (function != nullptr && function->form == FunctionForm::kPosition)
    call->arguments.push_back(PlaceIn(table));
}

void Rewriter::RewriteDelete(DeleteStatement& statement) {
  RewriteSource(statement.source);
  RewriteOptional(statement.where);
  RefuseRepeatedNames(jetText_, {&statement.source});
  if (std::holds_alternative<NamedTable>(statement.source.node)) {
    const auto& table = std::get<NamedTable>(statement.source.node);
    const bool named = statement.target.empty() || EqualName(statement.target, table.name.table) ||
                       EqualName(statement.target, table.alias);
    if (!named) {
      throw FailureAt(jetText_, statement.targetSpan, "La tabla de la que se borra no está en FROM");
    }
    return;
  }
  const TextSpan span = statement.source.span;
  NamedTable target;
  std::unique_ptr<Query> rows;
  bool first = false;
  if (const auto* derived = std::get_if<DerivedTable>(&statement.source.node)) {
    const NamedTable* table = TableBehind(*derived);
    if (table == nullptr) {
      throw FailureAt(jetText_, span,
                      "Solo se puede borrar a través de una consulta que da filas de una sola tabla");
    }
    target.name = table->name;
    first = !statement.where && HoldsFirstRows(*derived->query);
    rows = RowsOfDerived(statement, *table);
  } else {
    const NamedTable* table =
        statement.target.empty() ? nullptr : FindTable(statement.source, statement.target);
    if (table == nullptr) {
      throw FailureAt(jetText_, statement.target.empty() ? span : statement.targetSpan,
                      "Diga entre DELETE y FROM de cuál de las tablas de FROM se borra");
    }
    target.name = table->name;
    Select select;
    select.span = span;
    select.items.push_back(Item(PlaceIn(table->alias.empty() ? table->name.table : table->alias)));
    select.from.push_back(std::move(statement.source));
    select.where = std::move(statement.where);
    rows = QueryOf(std::move(select));
  }
  statement.source = TableSource{target.name.span, std::move(target)};
  statement.where = first ? PlaceIsUpTo(std::move(rows), span) : PlaceIsAmong(std::move(rows), span);
}

// The places of the rows that DELETE's derived table holds.
std::unique_ptr<Query> Rewriter::RowsOfDerived(DeleteStatement& statement, const NamedTable& table) {
  auto& derived = std::get<DerivedTable>(statement.source.node);
  if (!statement.target.empty() && !EqualName(statement.target, table.name.table) &&
      !EqualName(statement.target, derived.alias)) {
    throw FailureAt(jetText_, statement.targetSpan, "La tabla de la que se borra no es la de la consulta");
  }
  Select& inner = derived.query->members[0];
  const std::string name = ExposedName(inner.from[0]);
  if (!statement.where) {
    inner.items.clear();
    inner.items.push_back(Item(PlaceIn(name), kPlaceColumn));
    return std::move(derived.query);
  }
  inner.items.push_back(Item(PlaceIn(name), kPlaceColumn));
  Expression place;
  place.node = ColumnName{derived.alias, kPlaceColumn};
  Select outer;
  outer.span = statement.source.span;
  outer.items.push_back(Item(std::move(place)));
  outer.where = std::move(statement.where);
  outer.from.push_back(std::move(statement.source));
  return QueryOf(std::move(outer));
}

}  // namespace velmar::jet
