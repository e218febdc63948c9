#include "platform/jet/StatementEmitter.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/jet/SyntaxFailure.h"
#include "platform/jet/TableNames.h"
#include "platform/text/Case.h"

namespace velmar::jet {
namespace {

constexpr std::string_view kCollate = " COLLATE JET";

// The engine keeps the indexes of all tables under one roof; in Jet each table names its own.
std::string IndexName(const std::string& table, const std::string& index) {
  return table + "." + index;
}

bool EqualName(std::string_view a, std::string_view b) {
  return text::FoldCase(a) == text::FoldCase(b);
}

}  // namespace

StatementEmitter::StatementEmitter(std::string_view jetText, const NameMap* names, const AliasLookup& aliases)
    : jetText_(jetText), writer_(names), locator_(jetText, aliases), queries_(jetText, writer_, locator_) {}

Translation StatementEmitter::Emit(const Statement& statement) {
  std::visit([this](const auto& node) { Write(node); }, statement);
  translation_.sql = writer_.TakeText();
  translation_.spots = writer_.TakeSpots();
  return std::move(translation_);
}

void StatementEmitter::SetTarget(StatementKind kind, const TableName& name, bool sheetAllowed, bool isNew) {
  translation_.kind = kind;
  translation_.target =
      locator_.Target(name, isNew ? name.table : writer_.Spelling(name.table), sheetAllowed);
}

void StatementEmitter::Write(const SelectStatement& statement) {
  if (statement.into) {
    SetTarget(StatementKind::kSelectInto, *statement.into, true, true);
    RefuseRepeatedOutput(statement.query.members[0]);
  }
  translation_.columns = QueryEmitter::ColumnsOf(statement.query);
  queries_.Write(statement.query, QueryRole::kStatement);
  NoteDistinctTable(statement.query);
}

void StatementEmitter::NoteDistinctTable(const Query& query) {
  const Select& select = query.members[0];
  const bool plain = query.members.size() == 1 && query.orderBy.empty() && select.distinct && !select.top &&
                     !select.where && select.groupBy.empty() && !select.having && select.items.size() == 1 &&
                     select.items[0].star && select.items[0].starTable.empty() && select.from.size() == 1;
  if (!plain) return;
  if (const auto* table = std::get_if<NamedTable>(&select.from[0].node)) {
    translation_.distinctTable.emplace(locator_.AliasOf(table->name), writer_.Spelling(table->name.table));
  }
}

void StatementEmitter::RefuseRepeatedOutput(const Select& select) const {
  std::set<std::string> names;
  for (const SelectItem& item : select.items) {
    if (item.star) continue;
    const auto* column = std::get_if<ColumnName>(&item.expression->node);
    const std::string name = !item.alias.empty() || column == nullptr ? item.alias : column->column;
    if (name.empty() || names.insert(text::FoldCase(name)).second) continue;
    throw FailureAt(jetText_, item.span,
                    "La tabla nueva tendría dos campos " + name + "; dé otro nombre con AS a uno de ellos",
                    kDuplicateOutput);
  }
}

// `names` are those of the columns before it, case-folded.
void StatementEmitter::RefuseRepeated(const ColumnDefinition& column, std::set<std::string>& names) const {
  if (names.insert(text::FoldCase(column.name)).second) return;
  throw FailureAt(jetText_, column.span,
                  "La tabla tendría dos campos " + column.name + "; dé otro nombre a uno de ellos",
                  kDuplicateOutput);
}

// `written` are the columns before it, case-folded.
void StatementEmitter::RefuseRepeated(const std::string& column, TextSpan span,
                                      std::set<std::string>& written) const {
  if (written.insert(text::FoldCase(column)).second) return;
  throw FailureAt(jetText_, span, "El campo " + column + " recibe dos valores; deje uno solo",
                  kDuplicateOutput);
}

void StatementEmitter::Write(const InsertStatement& statement) {
  SetTarget(statement.query ? StatementKind::kInsertSelect : StatementKind::kInsertValues, statement.target,
            true);
  std::set<std::string> written;
  for (const TargetColumn& column : statement.columns) {
    RefuseRepeated(column.name, column.span, written);
    translation_.target->columns.push_back(writer_.Spelling(column.name));
  }
  if (statement.query) {
    translation_.columns = QueryEmitter::ColumnsOf(*statement.query);
    queries_.Write(*statement.query, QueryRole::kStatement);
  } else if (translation_.target->excel) {
    translation_.kind = StatementKind::kInsertSelect;
    writer_.Raw("SELECT ");
    WriteValues(statement.values);
  } else {
    writer_.Raw(InsertText(*translation_.target, translation_.target->columns, "VALUES ("));
    WriteValues(statement.values);
    writer_.Raw(")");
  }
}

void StatementEmitter::WriteValues(const std::vector<Expression>& values) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0) writer_.Raw(", ");
    queries_.Expressions().Value(values[i]);
  }
}

// The one table whose columns an UPDATE sets.
const NamedTable& StatementEmitter::UpdatedTable(const UpdateStatement& statement) const {
  const NamedTable* updated = std::get_if<NamedTable>(&statement.source.node);
  const bool single = updated != nullptr;
  for (const Assignment& assignment : statement.assignments) {
    const std::string& qualifier = assignment.column.table;
    if (single && qualifier.empty()) continue;
    const NamedTable* table = qualifier.empty() ? nullptr : FindTable(statement.source, qualifier);
    if (table == nullptr) {
      throw FailureAt(jetText_, assignment.span,
                      qualifier.empty()
                          ? "Con varias tablas, el campo que se cambia lleva delante el nombre de la suya"
                          : "La tabla " + qualifier + " no está entre las de UPDATE");
    }
    if (updated == nullptr) updated = table;
    if (table != updated)
      throw FailureAt(jetText_, assignment.span, "UPDATE solo puede cambiar una tabla a la vez");
  }
  return *updated;
}

void StatementEmitter::Write(const UpdateStatement& statement) {
  const NamedTable& table = UpdatedTable(statement);
  SetTarget(StatementKind::kUpdate, table.name);
  std::set<std::string> written;
  for (const Assignment& assignment : statement.assignments) {
    RefuseRepeated(assignment.column.column, assignment.span, written);
  }
  writer_.Raw("UPDATE ");
  queries_.WriteTable(table);
  writer_.Raw(" SET ");
  if (!std::holds_alternative<NamedTable>(statement.source.node)) {
    WriteJoinedUpdate(statement);
    return;
  }
  for (std::size_t i = 0; i < statement.assignments.size(); ++i) {
    const Assignment& assignment = statement.assignments[i];
    if (i > 0) writer_.Raw(", ");
    writer_.From(assignment.span).Name(assignment.column.column).Raw(" = ");
    queries_.Expressions().Value(assignment.value);
  }
  queries_.WriteWhere(statement.where);
}

// The joined rows are read first, each with the place of the row that it changes.
void StatementEmitter::WriteJoinedUpdate(const UpdateStatement& statement) {
  const NamedTable& table = UpdatedTable(statement);
  const std::string& name = table.alias.empty() ? table.name.table : table.alias;
  const auto value = [](std::size_t i) { return "\"[" + std::to_string(i) + "]\""; };
  for (std::size_t i = 0; i < statement.assignments.size(); ++i) {
    const Assignment& assignment = statement.assignments[i];
    if (i > 0) writer_.Raw(", ");
    writer_.From(assignment.span).Name(assignment.column.column).Raw(" = \"[u]\".").Raw(value(i + 1));
  }
  writer_.Raw(" FROM (SELECT ").Name(name).Raw("._rowid_ AS ").Raw(value(0));
  for (std::size_t i = 0; i < statement.assignments.size(); ++i) {
    writer_.Raw(", ");
    queries_.Expressions().Value(statement.assignments[i].value);
    writer_.Raw(" AS ").Raw(value(i + 1));
  }
  writer_.Raw(" FROM ");
  queries_.WriteSource(statement.source);
  queries_.WriteWhere(statement.where);
  writer_.Raw(") AS \"[u]\" WHERE ").Name(name).Raw("._rowid_ = \"[u]\".").Raw(value(0));
}

void StatementEmitter::Write(const DeleteStatement& statement) {
  const auto& table = std::get<NamedTable>(statement.source.node);
  SetTarget(StatementKind::kDelete, table.name);
  writer_.Raw("DELETE FROM ");
  queries_.WriteTable(table);
  queries_.WriteWhere(statement.where);
}

void StatementEmitter::Write(const CreateTableStatement& statement) {
  SetTarget(StatementKind::kCreateTable, statement.target, false, true);
  std::vector<std::string> key;
  for (const ColumnDefinition& column : statement.columns) {
    if (column.primaryKey) key.push_back(column.name);
  }
  for (const TableConstraint& constraint : statement.constraints) {
    if (constraint.primaryKey) key.insert(key.end(), constraint.columns.begin(), constraint.columns.end());
  }
  writer_.Raw("CREATE TABLE ")
      .From(statement.target.span)
      .Table(translation_.target->alias, statement.target.table)
      .Raw(" (");
  bool rowKeyWritten = false;
  std::set<std::string> names;
  for (std::size_t i = 0; i < statement.columns.size(); ++i) {
    const ColumnDefinition& column = statement.columns[i];
    RefuseRepeated(column, names);
    const bool soleKey = key.size() == 1 && EqualName(key[0], column.name);
    const bool rowKey =
        column.type == "INTEGER" && (soleKey || (column.counter && key.empty() && !rowKeyWritten));
    if (column.counter && !rowKey) {
      throw FailureAt(jetText_, column.span,
                      "Un campo COUNTER tiene que ser la única clave principal de su tabla");
    }
    if (i > 0) writer_.Raw(", ");
    const bool inKey = std::any_of(
        key.begin(), key.end(), [&column](const std::string& name) { return EqualName(name, column.name); });
    WriteColumn(column, rowKey, inKey);
    rowKeyWritten = rowKeyWritten || rowKey;
  }
  const auto writeList = [this](std::string_view word, const std::vector<std::string>& columns) {
    writer_.Raw(word);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      if (i > 0) writer_.Raw(", ");
      writer_.NewName(columns[i]);
    }
    writer_.Raw(")");
  };
  if (!key.empty() && !rowKeyWritten) writeList(", PRIMARY KEY (", key);
  for (const TableConstraint& constraint : statement.constraints) {
    if (!constraint.primaryKey) writeList(", UNIQUE (", constraint.columns);
  }
  writer_.Raw(")");
}

void StatementEmitter::WriteColumn(const ColumnDefinition& column, bool rowKey, bool inKey) {
  writer_.From(column.span).NewName(column.name).Raw(" ").Raw(column.type);
  if (rowKey) {
    writer_.Raw(" PRIMARY KEY");
    return;
  }
  writer_.Raw(kCollate);
  if (column.notNull || inKey) writer_.Raw(" NOT NULL");
  if (column.unique) writer_.Raw(" UNIQUE");
  if (column.type != "BIT") return;
  // True is -1 and nothing else: any other number would be neither True nor False in a comparison. The
  // constraint bears the column's name, for the failure to tell it.
  writer_.Raw(" DEFAULT 0 CONSTRAINT ").NewName(column.name);
  writer_.Raw(" CHECK (").NewName(column.name).Raw(" IN (0, -1))");
}

void StatementEmitter::Write(const CreateIndexStatement& statement) {
  SetTarget(StatementKind::kCreateIndex, statement.target);
  const TargetTable& target = *translation_.target;
  writer_.Raw(statement.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ")
      .Table(target.alias, IndexName(target.table, statement.index))
      .Raw(" ON ");
  writer_.From(statement.target.span).NewName(translation_.target->table).Raw(" (");
  for (std::size_t i = 0; i < statement.columns.size(); ++i) {
    if (i > 0) writer_.Raw(", ");
    writer_.Name(statement.columns[i].name);
    if (statement.columns[i].descending) writer_.Raw(" DESC");
  }
  writer_.Raw(")");
}

void StatementEmitter::Write(const AlterTableStatement& statement) {
  SetTarget(StatementKind::kAlterTable, statement.target);
  writer_.Raw("ALTER TABLE ").From(statement.target.span);
  writer_.Table(translation_.target->alias, translation_.target->table);
  if (!statement.added) {
    writer_.Raw(" DROP COLUMN ").Name(statement.dropped);
    return;
  }
  if (statement.added->primaryKey || statement.added->unique || statement.added->counter) {
    throw FailureAt(jetText_, statement.added->span,
                    "Un campo añadido a una tabla no puede ser contador ni clave; cree un índice para él");
  }
  writer_.Raw(" ADD COLUMN ");
  WriteColumn(*statement.added, false, false);
}

void StatementEmitter::Write(const DropStatement& statement) {
  SetTarget(statement.index ? StatementKind::kDropIndex : StatementKind::kDropTable, statement.target);
  const TargetTable& target = *translation_.target;
  writer_.Raw(statement.index ? "DROP INDEX " : "DROP TABLE ").From(statement.target.span);
  writer_.Table(target.alias, statement.index ? IndexName(target.table, statement.indexName) : target.table);
}

}  // namespace velmar::jet
