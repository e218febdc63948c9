#pragma once

#include <functional>
#include <string>

#include "query/Selection.h"
#include "sample/command/Terminal.h"
#include "sample/command/WizardSession.h"

namespace velmar::sample {

/// What the wizard makes of a stored template when nobody sits before it.
class TemplateRun {
 public:
  TemplateRun(SampleHost::Settings settings, std::string name, Selection::Relation relation);

  /// Exports as the wizard's button does, and tells on err how far it has come. When this returns, a complete
  /// workbook stands under `file`; gives its path with its real capitals. SIGINT and SIGTERM cancel the
  /// export at its next safe point, which leaves neither work files nor anything of the workbook.
  ///
  /// CommandError with the exit code of any other end, RuntimeError for failures of the wizard itself.
  std::string Export(const std::string& file, bool overwrite, const Terminal& terminal);

  /// The statement that an export would run first, in one line. Nothing is exported. Errors as above.
  std::string Statement();

 private:
  void Fill(wizard::frmExportacion& form, WizardSession& session) const;

  SampleHost::Settings settings_;
  std::string name_;
  Selection::Relation relation_;
};

}  // namespace velmar::sample
