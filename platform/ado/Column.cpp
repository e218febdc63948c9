#include "platform/ado/Column.h"

#include "platform/ado/Statement.h"
#include "platform/ado/TableNames.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

bool IsBooleanType(const std::string& type) {
  for (const char* name : {"BIT", "YESNO", "LOGICAL", "LOGICAL1", "BOOLEAN"}) {
    if (SameName(type, name)) return true;
  }
  return false;
}

}  // namespace

std::vector<Column> ColumnsOf(const Statement& select, const velmar::jet::Translation& translation) {
  const auto count = static_cast<std::size_t>(select.ColumnCount());
  const bool known = translation.columns.size() == count;
  std::vector<Column> columns;
  columns.reserve(count);
  for (std::size_t index = 0; index < count; ++index) {
    Column column;
    column.name = known && !translation.columns[index].name.empty()
                      ? translation.columns[index].name
                      : select.ColumnName(static_cast<int>(index));
    column.type = select.DeclaredType(static_cast<int>(index));
    if (column.type.empty() && known) column.type = translation.columns[index].type;
    column.boolean = IsBooleanType(column.type);
    columns.push_back(std::move(column));
  }
  return columns;
}

std::vector<std::string> NamesOf(const std::vector<Column>& columns) {
  std::vector<std::string> names;
  names.reserve(columns.size());
  for (const Column& column : columns) names.push_back(column.name);
  return names;
}

}  // namespace ADODB
