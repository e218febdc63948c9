#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/Tree.h"

namespace velmar::jet {

/// The names under which a FROM offers its tables: aliases, or the tables' own names.

/// The name of one table; empty for a join and for a derived table without a name.
std::string ExposedName(const TableSource& source);

/// All names of a source, case-folded.
std::set<std::string> ExposedNames(const TableSource& source);

/// The table that a source offers under a name in any case. Null if there is none.
const NamedTable* FindTable(const TableSource& source, std::string_view name);

/// Fails with the place if a FROM offers two tables under one name.
void RefuseRepeatedNames(std::string_view jetText, const std::vector<const TableSource*>& sources);

}  // namespace velmar::jet
