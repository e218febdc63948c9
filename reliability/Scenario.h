#pragma once

#include <string>
#include <vector>

#include "reliability/Faults.h"
#include "reliability/Office.h"
#include "reliability/WizardUser.h"

namespace velmar::reliability {

/// One export of a sample office, carried out without a fault once, against which all others are measured.
class Scenario {
 public:
  /// The office's databases are taken as they are. Throws std::runtime_error if the export fails.
  Scenario(const Office& original, Selection selection);

  /// The number of operations of the faultless export, the opening of the window included.
  long Operations() const noexcept { return operations_; }
  /// The numbers of those that are not about single rows.
  const std::vector<long>& Milestones() const noexcept { return milestones_; }
  long Rows() const noexcept { return rows_; }
  std::size_t Sheets() const noexcept { return sheets_; }
  /// How long the faultless export took, in microseconds.
  long Microseconds() const noexcept { return microseconds_; }

  /// Makes the office fresh, with an old file in the target's place.
  void Prepare(Office& office) const;
  static void PutOldTarget(const Office& office);
  Seen Run(const Office& office) const { return Export(office.Folder(), Target(office), selection_); }
  Seen RunTo(const Office& office, const std::string& file) const {
    return Export(office.Folder(), file, selection_);
  }
  static std::string Target(const Office& office) { return office.Path("Salida.xls"); }

  /// What is wrong behind a run that has failed, or has not; empty if all is as it has to be.
  std::vector<std::string> Complaints(const Office& office, const Seen& seen, const Faults& faults) const;
  /// The same behind a process that was killed.
  std::vector<std::string> ComplaintsOfData(const Office& office) const;
  /// Exports once more, without faults, and says what is wrong then.
  std::vector<std::string> ComplaintsOfNextRun(const Office& office) const;
  /// True if the target is, byte by byte or cell by cell, the faultless workbook.
  bool IsComplete(const std::string& workbook) const;
  bool IsOldTarget(const Office& office) const;

 private:
  void CheckTables(const Office& office, const char* database, const Tables& before, const Tables& after,
                   std::vector<std::string>& complaints) const;

  Selection selection_;
  const Office& original_;
  Tables mainBefore_;
  Tables mainAfter_;
  Tables reports_;
  std::string workbook_;
  std::vector<std::vector<std::vector<std::string>>> cells_;
  long operations_ = 0;
  std::vector<long> milestones_;
  long rows_ = 0;
  long microseconds_ = 0;
  std::size_t sheets_ = 0;
};

}  // namespace velmar::reliability
