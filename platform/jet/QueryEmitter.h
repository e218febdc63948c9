#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/ExpressionEmitter.h"
#include "platform/jet/SqlWriter.h"
#include "platform/jet/TableLocator.h"
#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Where a query stands: its columns' names and collations matter in some places and not in others.
enum class QueryRole {
  kStatement,  ///< its rows are the result
  kTable,      ///< a table for another query
  kValue       ///< behind IN, EXISTS, ANY or as a value
};

/// Writes queries, one routine a clause.
class QueryEmitter {
 public:
  /// All must outlive the emitter.
  QueryEmitter(std::string_view jetText, SqlWriter& writer, TableLocator& locator);
  QueryEmitter(const QueryEmitter&) = delete;
  QueryEmitter& operator=(const QueryEmitter&) = delete;

  void Write(const Query& query, QueryRole role);
  void WriteSources(const std::vector<TableSource>& sources);
  void WriteSource(const TableSource& source);
  /// The table's name with its database, and its alias.
  void WriteTable(const NamedTable& table);
  void WriteWhere(const std::optional<Expression>& where);
  ExpressionEmitter& Expressions() { return expressions_; }

  /// The columns that a query gives; none if its list holds a *.
  static std::vector<OutputColumn> ColumnsOf(const Query& query);

 private:
  void WriteSelect(const Select& select, QueryRole role, bool collated);
  void WriteItems(const Select& select, QueryRole role, bool collated);
  void WriteOrder(const Query& query);
  void WriteLimit(const Query& query, QueryRole role);

  std::string_view jetText_;
  SqlWriter& writer_;
  TableLocator& locator_;
  ExpressionEmitter expressions_;
};

}  // namespace velmar::jet
