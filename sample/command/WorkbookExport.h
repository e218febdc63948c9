#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/ado/Connection.h"

namespace velmar::sample {

/// Takes the rows of one Jet SELECT to a workbook: staged in a work database, cut into blocks of 8000 rows,
/// and written to the sheets Hoja1, Hoja2 and so on of 64,000 rows each. The database is only read.
class WorkbookExport {
 public:
  struct Result {
    long rows = 0;
    long sheets = 0;
  };

  /// workParent is the folder below which the work files come to lie for the length of a run.
  WorkbookExport(std::shared_ptr<ADODB::Connection> main, std::string workParent);

  /// Writes the workbook under its name when all of it is there. kFileAlreadyExists if the file stands there
  /// and overwrite is false; kQuerySyntax for a text that is no SELECT with a FROM. A SELECT without rows
  /// gives no workbook, and a file that stood there is left alone.
  Result Run(std::string_view statement, const std::string& file, bool overwrite) const;

  /// The statement with INTO target in front of its FROM.
  static std::string WithTarget(std::string_view statement, std::string_view target);

 private:
  std::shared_ptr<ADODB::Connection> main_;
  std::string workParent_;
};

}  // namespace velmar::sample
