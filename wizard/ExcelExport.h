#pragma once

#include "export/ExportRun.h"
#include "wizard/ExportRunner.h"

namespace velmar::wizard {

/// The export to a workbook, over the controls of a wizard's window. The window is borrowed.
class ExcelExport final : public ExportRunner {
 public:
  explicit ExcelExport(frmExportacion& window);

  void ExportarDatos() override;
  void tmrExportacion_Timer(int index) override { run_.tmrExportacion_Timer(index); }
  bool IsRunning() const override { return run_.IsRunning(); }
  void RequestCancel() override { run_.RequestCancel(); }

  static std::unique_ptr<ExportRunner> Make(frmExportacion& window);

 private:
  frmExportacion& window_;
  exporting::ExportRun run_;
};

}  // namespace velmar::wizard
