#pragma once

#include <string>
#include <vector>

namespace ADODB {

class Database;

/// A few columns that tell most rows of a table apart, as far as its first and last rows show; all columns
/// where no few do. The table's name is quoted, its rows have keys.
std::vector<std::string> TellingColumns(Database& database, const std::string& table,
                                        const std::vector<std::string>& columns);

}  // namespace ADODB
