#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/Translation.h"
#include "platform/jet/Tree.h"

namespace velmar::jet {

/// The databases that one statement names, and the aliases under which its text knows them.
class DatabaseList {
 public:
  /// The text, for failures, and the lookup must outlive the list.
  DatabaseList(std::string_view jetText, const AliasLookup& aliases) : jetText_(jetText), aliases_(aliases) {}

  /// The alias of the database in front of a table; "main" where there is none. Fails for a sheet, and, as
  /// Target does, for a workbook behind which the sheet is missing.
  std::string AliasOf(const TableName& name);
  /// The same for a table that is written, with all that is known of it; a sheet is taken where
  /// `sheetAllowed`.
  TargetTable Target(const TableName& name, const std::string& storedName, bool sheetAllowed);

  const std::vector<ExternalDatabase>& Databases() const { return databases_; }

 private:
  std::string AliasOf(std::string_view database, TextSpan span);
  std::string WorkbookOf(const TableName& name) const;
  void RefuseWorkbookAsTable(const TableName& name) const;

  std::string_view jetText_;
  const AliasLookup& aliases_;
  std::vector<ExternalDatabase> databases_;
};

}  // namespace velmar::jet
