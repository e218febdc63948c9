#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::jet {
struct Translation;
}

namespace ADODB {

class Session;

/// A SELECT over plain columns of one table of the connection's own database, so that each of its rows is one
/// row of that table and can be reached by the engine's row key.
struct KeyedTable {
  std::string table;
  std::vector<std::string> columns;  ///< the table's own names of the result's columns
  std::string keys;                  ///< the Jet text that gives the row keys, in the order of the rows

  /// Nothing if the SELECT is of another kind.
  static std::optional<KeyedTable> Of(Session& session, const std::string& text,
                                      const velmar::jet::Translation& translation);
};

/// The source of a recordset as a SELECT: the text itself, or all of the table that it names.
std::string SelectOf(std::string_view source);

}  // namespace ADODB
