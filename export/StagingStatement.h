#pragma once

#include <string>
#include <string_view>

namespace velmar::exporting {

/// The statement that stages the selected rows in the work database, and its second form, which appends the
/// rows of pending receipts.
class StagingStatement {
 public:
  /// The clauses are joined with nothing between them; workPath is the work database's path.
  StagingStatement(std::string select, std::string workPath, std::string fromWhereOrder);

  /// SELECT … INTO [path].ExportacionExcel …
  std::string Text() const;
  /// True if the lower-cased statement holds the piece, its path included.
  bool Holds(std::string_view piece) const;
  /// INSERT INTO [path].ExportacionExcel SELECT … over the tables of pending receipts, in lower case but for
  /// the path. Quoted texts keep their words. Raises kQuerySyntax for a text that is no statement.
  std::string PendingText() const;

 private:
  std::string Target() const;

  std::string select_;
  std::string workPath_;
  std::string rest_;
};

}  // namespace velmar::exporting
