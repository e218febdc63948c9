#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/error/RuntimeError.h"

namespace velmar::jet {

class NameMap;

enum class StatementKind {
  kSelect,
  kSelectInto,
  kInsertSelect,
  kInsertValues,
  kUpdate,
  kDelete,
  kCreateTable,
  kCreateIndex,
  kAlterTable,
  kDropTable,
  kDropIndex
};

/// The table that a statement writes.
struct TargetTable {
  std::string alias = "main";  ///< "main" or what the AliasLookup gave
  std::string table;
  bool excel = false;     ///< an "Excel 8.0" sheet: `excelFile` and `table` name it, `alias` is unused
  std::string excelFile;  ///< path of the workbook
  std::vector<std::string> columns;  ///< INSERT's own column list; empty if it has none
  TextSpan span;                     ///< the table's name in the Jet text
};

/// One column that a SELECT gives.
struct OutputColumn {
  std::string name;  ///< the alias, the column's name as written, or "Expr1000" and up for other expressions
  /// TEXT, INTEGER, DOUBLE, CURRENCY, BIT or DATETIME when the expression fixes the type; empty: take the
  /// type of the source column, or what the values turn out to be.
  std::string type;
};

/// Says which place of the Jet text a place of the emitted text stands for. Sorted by `sqlOffset`; a place
/// belongs to the last spot at or before it.
struct SourceSpot {
  std::size_t sqlOffset = 0;
  TextSpan span;
};

struct Translation {
  StatementKind kind = StatementKind::kSelect;
  /// The SQLite text. For kSelectInto and kInsertSelect it is the SELECT alone: the caller looks up the
  /// types, then composes with CreateTableText and InsertText.
  std::string sql;
  std::optional<TargetTable> target;  ///< for every kind but kSelect
  std::vector<OutputColumn> columns;  ///< one a column of the SELECT; empty if its list holds a *
  std::vector<SourceSpot> spots;
  /// For SELECT DISTINCT * of one table with nothing else: the alias of its database and its name.
  std::optional<std::pair<std::string, std::string>> distinctTable;

  /// The place in the Jet text of a byte offset in `sql` (as the engine reports it for a failure to prepare).
  std::optional<TextSpan> SourceOf(std::size_t sqlOffset) const;
};

/// Gives the alias under which the caller attaches another database that a statement names, "main" for that
/// of the connection itself. May be asked for one more than once; an empty password is none.
using AliasLookup = std::function<std::string(const std::string& path, const std::string& password)>;

/// Translates one statement. A semicolon may end it; anything else behind it is an error. Throws RuntimeError
/// with Span: kQuerySyntax (what was expected and found), kUnknownFunction, kDuplicateOutput, kTypeMismatch.
/// Unknown tables and columns are found by the engine when the text is prepared.
Translation Translate(std::string_view jetText, const AliasLookup& aliases, const NameMap* names = nullptr);

/// True if the text holds a name with letters outside ASCII, so that Translate needs a NameMap to find names
/// that are stored in another case.
bool NeedsNameMap(std::string_view jetText);

/// CREATE TABLE for the target with these columns, every one of them collated JET. A column without a type
/// keeps the type of each of its values.
std::string CreateTableText(const TargetTable& target, const std::vector<OutputColumn>& columns);

/// INSERT of a SELECT's rows into the target. An empty list fills the columns by position.
std::string InsertText(const TargetTable& target, const std::vector<std::string>& columns,
                       std::string_view selectSql);

/// The name in double quotes, for any place of an SQLite text.
std::string QuoteIdentifier(std::string_view name);

}  // namespace velmar::jet
