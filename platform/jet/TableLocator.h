#pragma once

#include <string>
#include <string_view>

#include "platform/jet/Translation.h"
#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Where the tables are that one statement names: the aliases of their databases, and the workbooks.
class TableLocator {
 public:
  /// The text, for failures, and the lookup must outlive the list.
  TableLocator(std::string_view jetText, const AliasLookup& aliases) : jetText_(jetText), aliases_(aliases) {}

  /// The alias of the database in front of a table; "main" where there is none. Fails for a sheet, and, as
  /// Target does, for a workbook behind which the sheet is missing.
  std::string AliasOf(const TableName& name);
  /// The same for a table that is written, with all that is known of it; a sheet is taken where
  /// `sheetAllowed`.
  TargetTable Target(const TableName& name, const std::string& storedName, bool sheetAllowed);

 private:
  std::string AliasOf(std::string_view database, TextSpan span);
  std::string WorkbookOf(const TableName& name) const;
  void RefuseWorkbookAsTable(const TableName& name) const;

  std::string_view jetText_;
  const AliasLookup& aliases_;
};

}  // namespace velmar::jet
