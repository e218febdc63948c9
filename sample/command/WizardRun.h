#pragma once

#include <string>
#include <vector>

#include "sample/command/WizardSession.h"

namespace velmar::sample {

/// Runs of the wizard in which a scripted user picks fields from the catalogue, gives them filters and a sort
/// order, and presses the export button.
class WizardRun {
 public:
  struct Field {
    std::string node;         ///< as the node list shows it
    std::string literal;      ///< as the list of fields shows it
    std::string filter = {};  ///< in the filter language; empty: none
    bool sorted = false;      ///< the export is sorted by it, in the order of the fields
  };

  explicit WizardRun(SampleHost::Settings settings);

  /// Leaves the workbook under this path; one that stands there is replaced. CommandError with the wizard's
  /// own messages if it does not end with a complete workbook, RuntimeError kItemNotInCollection for a field
  /// that it does not offer.
  void Export(const std::vector<Field>& fields, const std::string& file);

  /// What the user does in the open window for one field. kItemNotInCollection if it is not offered. The user
  /// must be ready to agree to the filter.
  static void Pick(wizard::frmExportacion& form, toolkit::ScriptedToolkit& user, const Field& field);

 private:
  SampleHost::Settings settings_;
};

}  // namespace velmar::sample
