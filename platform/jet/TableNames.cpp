#include "platform/jet/TableNames.h"

#include "platform/jet/SyntaxFailure.h"
#include "platform/text/Case.h"

namespace velmar::jet {
namespace {

template <typename Visit>
void ForEachTable(const TableSource& source, const Visit& visit) {
  if (const auto* join = std::get_if<Join>(&source.node)) {
    for (const TableSource& operand : join->operands) ForEachTable(operand, visit);
  } else {
    visit(source);
  }
}

}  // namespace

std::string ExposedName(const TableSource& source) {
  if (const auto* named = std::get_if<NamedTable>(&source.node)) {
    return named->alias.empty() ? named->name.table : named->alias;
  }
  const auto* derived = std::get_if<DerivedTable>(&source.node);
  return derived == nullptr ? std::string() : derived->alias;
}

std::set<std::string> ExposedNames(const TableSource& source) {
  std::set<std::string> names;
  ForEachTable(source,
               [&names](const TableSource& table) { names.insert(text::FoldCase(ExposedName(table))); });
  return names;
}

const NamedTable* FindTable(const TableSource& source, std::string_view name) {
  const NamedTable* found = nullptr;
  const std::string folded = text::FoldCase(name);
  ForEachTable(source, [&](const TableSource& table) {
    if (found == nullptr && text::FoldCase(ExposedName(table)) == folded)
      found = std::get_if<NamedTable>(&table.node);
  });
  return found;
}

void RefuseRepeatedNames(std::string_view jetText, const std::vector<const TableSource*>& sources) {
  std::set<std::string> names;
  for (const TableSource* source : sources) {
    ForEachTable(*source, [&](const TableSource& table) {
      const std::string name = ExposedName(table);
      if (name.empty() || names.insert(text::FoldCase(name)).second) return;
      throw FailureAt(
          jetText, table.span,
          "En FROM, la tabla " + name + " aparece dos veces; dé otro nombre con AS a una de ellas");
    });
  }
}

}  // namespace velmar::jet
