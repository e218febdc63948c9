#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::jet {
class NameMap;
}

namespace ADODB {

class Database;

/// The table that holds a file's password. No statement can name it.
inline constexpr std::string_view kSystemTable = "MSysVelmar";

bool IsSystemTable(std::string_view name) noexcept;

/// True for names behind which the engine makes up a table about itself or its files, where no table of the
/// file has the name.
bool IsEngineModule(std::string_view name) noexcept;

/// Regardless of case, accented letters included, where the engine itself folds ASCII only.
bool SameName(std::string_view a, std::string_view b);

/// Names of the tables and views of an attached file, without the engine's and the system's own.
std::vector<std::string> TableNames(Database& database, const std::string& alias);

/// The stored spelling of a table's name; nothing if there is no such table.
std::optional<std::string> FindTable(Database& database, const std::string& alias, std::string_view name);

/// In the order of the table.
std::vector<std::string> ColumnNames(Database& database, const std::string& alias, const std::string& table);

/// True if "_rowid_" means the key of the table's rows: not of a view or a table without such keys, nor where
/// a column of that name hides it.
bool HasRowKeys(Database& database, const std::string& alias, const std::string& table);

/// True if a table of the main file is defined as this program defines one: columns that compare by JET, and
/// neither keys nor indexes nor triggers.
bool IsPlainTable(Database& database, const std::string& table);

/// The position of a name in a list of names.
std::optional<std::size_t> FindName(const std::vector<std::string>& names, std::string_view name);

/// Adds the names of all tables and their columns.
void AddNames(Database& database, const std::string& alias, velmar::jet::NameMap& names);

}  // namespace ADODB
