#include "platform/jet/QueryEmitter.h"

#include <algorithm>
#include <cstddef>

#include "platform/jet/TypeOf.h"

namespace velmar::jet {
namespace {

std::string UnnamedColumn(std::size_t position) {
  return "Expr" + std::to_string(1000 + position);
}

}  // namespace

QueryEmitter::QueryEmitter(std::string_view jetText, SqlWriter& writer, TableLocator& locator)
    : jetText_(jetText),
      writer_(writer),
      locator_(locator),
      expressions_(jetText, writer, [this](const Query& query) {
        const bool before = expressions_.AllowAggregates(false);
        Write(query, QueryRole::kValue);
        expressions_.AllowAggregates(before);
      }) {}

void QueryEmitter::Write(const Query& query, QueryRole role) {
  const bool united = query.members.size() > 1;
  const bool collated =
      united || role == QueryRole::kTable || !query.orderBy.empty() || query.members[0].distinct;
  for (std::size_t i = 0; i < query.members.size(); ++i) {
    if (i > 0) writer_.Raw(query.unionAll[i - 1] ? " UNION ALL " : " UNION ");
    WriteSelect(query.members[i], role, collated);
  }
  WriteOrder(query);
  WriteLimit(query, role);
}

void QueryEmitter::WriteSelect(const Select& select, QueryRole role, bool collated) {
  writer_.Raw(select.distinct ? "SELECT DISTINCT " : "SELECT ");
  WriteItems(select, role, collated);
  WriteSources(select.from);
  WriteWhere(select.where);
  for (std::size_t i = 0; i < select.groupBy.size(); ++i) {
    writer_.Raw(i == 0 ? " GROUP BY " : ", ");
    expressions_.Collated(select.groupBy[i]);
  }
  if (!select.having) return;
  writer_.Raw(" HAVING ");
  const bool before = expressions_.AllowAggregates(true);
  expressions_.Condition(*select.having);
  expressions_.AllowAggregates(before);
}

void QueryEmitter::WriteItems(const Select& select, QueryRole role, bool collated) {
  const bool before = expressions_.AllowAggregates(true);
  for (std::size_t i = 0; i < select.items.size(); ++i) {
    const SelectItem& item = select.items[i];
    if (i > 0) writer_.Raw(", ");
    writer_.From(item.span);
    if (item.star) {
      if (!item.starTable.empty()) writer_.Name(item.starTable).Raw(".");
      writer_.Raw("*");
      continue;
    }
    if (collated) {
      expressions_.Collated(*item.expression);
    } else {
      expressions_.Value(*item.expression);
    }
    if (!item.alias.empty()) {
      writer_.Raw(" AS ").NewName(item.alias);
    } else if (role != QueryRole::kValue && !IsBareColumn(*item.expression)) {
      writer_.Raw(" AS ").NewName(UnnamedColumn(i));
    }
  }
  expressions_.AllowAggregates(before);
}

void QueryEmitter::WriteSources(const std::vector<TableSource>& sources) {
  for (std::size_t i = 0; i < sources.size(); ++i) {
    writer_.Raw(i == 0 ? " FROM " : ", ");
    const bool nested = i > 0 && std::holds_alternative<Join>(sources[i].node);
    if (nested) writer_.Raw("(");
    WriteSource(sources[i]);
    if (nested) writer_.Raw(")");
  }
}

void QueryEmitter::WriteSource(const TableSource& source) {
  if (const auto* table = std::get_if<NamedTable>(&source.node)) {
    WriteTable(*table);
    return;
  }
  if (const auto* derived = std::get_if<DerivedTable>(&source.node)) {
    writer_.Raw("(");
    Write(*derived->query, QueryRole::kTable);
    writer_.Raw(")");
    if (!derived->alias.empty()) writer_.Raw(" AS ").NewName(derived->alias);
    return;
  }
  const auto& join = std::get<Join>(source.node);
  const bool nested = std::holds_alternative<Join>(join.operands[1].node);
  WriteSource(join.operands[0]);
  writer_.Raw(join.kind == JoinKind::kInner  ? " JOIN "
              : join.kind == JoinKind::kLeft ? " LEFT JOIN "
                                             : " RIGHT JOIN ");
  if (nested) writer_.Raw("(");
  WriteSource(join.operands[1]);
  if (nested) writer_.Raw(")");
  if (!join.on) return;
  writer_.Raw(" ON ");
  expressions_.Condition(*join.on);
}

void QueryEmitter::WriteTable(const NamedTable& table) {
  const std::string alias = locator_.AliasOf(table.name);
  writer_.From(table.name.span).Table(alias, writer_.Spelling(table.name.table));
  if (!table.alias.empty()) writer_.Raw(" AS ").NewName(table.alias);
}

void QueryEmitter::WriteWhere(const std::optional<Expression>& where) {
  if (!where) return;
  writer_.Raw(" WHERE ");
  expressions_.Condition(*where);
}

void QueryEmitter::WriteOrder(const Query& query) {
  const bool before = expressions_.AllowAggregates(FormsGroups(query.members[0]));
  for (std::size_t i = 0; i < query.orderBy.size(); ++i) {
    const OrderItem& item = query.orderBy[i];
    writer_.Raw(i == 0 ? " ORDER BY " : ", ");
    expressions_.Collated(item.expression);
    if (item.descending) writer_.Raw(" DESC");
  }
  expressions_.AllowAggregates(before);
}

void QueryEmitter::WriteLimit(const Query& query, QueryRole role) {
  const auto& top = query.members[0].top;
  if (!top) return;
  writer_.From(top->span);
  if (!top->percent) {
    writer_.Raw(" LIMIT ").Raw(top->count);
    return;
  }
  // A part of a row is a row.
  writer_.Raw(" LIMIT (SELECT (count(*) * ").Raw(top->count).Raw(" + 99) / 100 FROM (");
  WriteSelect(query.members[0], role == QueryRole::kValue ? QueryRole::kTable : role, true);
  writer_.Raw("))");
}

std::vector<OutputColumn> QueryEmitter::ColumnsOf(const Query& query) {
  std::vector<OutputColumn> columns;
  const auto& items = query.members[0].items;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i].star) return {};
    const Expression& expression = *items[i].expression;
    OutputColumn column;
    column.type = DeclaredType(TypeOf(expression));
    if (!items[i].alias.empty()) {
      column.name = items[i].alias;
    } else if (const auto* name = std::get_if<ColumnName>(&expression.node)) {
      column.name = name->column;
    } else {
      column.name = UnnamedColumn(i);
    }
    columns.push_back(std::move(column));
  }
  return columns;
}

}  // namespace velmar::jet
