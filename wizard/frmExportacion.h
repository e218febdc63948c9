#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "host/interfaces/FailureReport.h"
#include "host/interfaces/UserMessages.h"
#include "host/interfaces/cIFunciones.h"
#include "platform/toolkit/Form.h"
#include "query/Selection.h"
#include "wizard/ExportControls.h"
#include "wizard/ExportRunner.h"
#include "wizard/ExportWatch.h"
#include "wizard/FieldSelection.h"
#include "wizard/FilterEditor.h"
#include "wizard/OrderEditor.h"

namespace ADODB {
class Connection;
}

namespace velmar {
class HostApi;
}

namespace velmar::wizard {

/// The wizard's window: the user composes a selection and starts its export. It reaches the host through
/// `objHost`, opens the host's two connections if they are closed, and closes them when it is unloaded. Make
/// it with toolkit::MakeForm.
///
/// While an export is in progress, all its actions only beep, but for leaving: that asks whether to cancel
/// the export, and the window stays. While the selection is being tested leaving only beeps as well.
class frmExportacion : public toolkit::Form, public ExportControls {
 public:
  /// Without a factory the window can do all but export (kObjectNotSet).
  explicit frmExportacion(toolkit::Toolkit& toolkit, ExportRunnerFactory makeRunner = {});
  ~frmExportacion() override;

  /// The field catalogue in memory, created on first use and released when the window is unloaded.
  Collection<cCampos>& mcolCampos();
  /// The object of the host's API library, from Form_Load until the window is unloaded; else nullptr.
  const std::shared_ptr<HostApi>& objApi() const noexcept { return objApi_; }
  /// The connection to the work database of an export. Each export replaces it.
  std::shared_ptr<ADODB::Connection>& conAuxiliar() noexcept { return conAuxiliar_; }

  /// Told of this window's exports.
  ExportWatch watch;

  /// The selection that the controls hold.
  Selection CurrentSelection() const;
  /// Reports a failure of this window's routines to the host.
  FailureReport Report() const;

  // Clauses of the current selection; failures as the builders of the same name say.
  std::string GenerarSQLSELECT();
  std::string GenerarSQLFROM();
  std::string GenerarSQLWHERE();
  std::string GenerarSQLORDERBY();

  /// True if the selection can be exported; warns if it cannot.
  bool ValidarExportacion();

  /// Refills the list of available fields for the chosen node.
  void cboExportar_Click();
  /// Fetches a value for the field of the current row into the filter being written.
  void cmdVerDatos_Click();
  /// The bottom buttons: 0 leaves, 1 exports, 2 opens the help, 3 loads a template, 4 saves one.
  void cmdExportar_Click(int index);

 protected:
  void Form_Initialize() override;
  void Form_Load() override;
  void Form_Unload(bool& Cancel) override;
  void Form_Terminate() override;

 private:
  cIFunciones& objFunciones();
  /// The main database for a routine; nullptr if the host cannot give it, which is reported as the routine's.
  std::shared_ptr<ADODB::Connection> Gestion(const std::string& routine) const;
  void ActualizarCatalogo();
  void LlenarColeccionCampos();
  void fillTablasExportacion();
  void fillCamposDisponibles();

  void AddControls();
  void WireFieldSelection();
  void WireFilterEditor();
  void WireOrderEditor();
  void WireWindow();
  void FillMenu();

  bool IsExporting() const;
  /// True from the test of the selection to the end of its export.
  bool IsBusy() const { return validating_ || IsExporting(); }
  /// Runs what the user has asked for, unless the window is busy: then it beeps.
  void Act(const std::function<void()>& action);
  void NodeChosen();
  void Export();
  void LoadTemplate();
  void SaveTemplate();
  void ShowTemplates(std::uint8_t operation);
  std::function<void()> Turn() const;

  std::unique_ptr<Collection<cCampos>> mcolCampos_;
  std::shared_ptr<HostApi> objApi_;
  std::unique_ptr<cIFunciones> objFunciones_;
  std::shared_ptr<ADODB::Connection> conAuxiliar_;

  UserMessages messages_;
  OrderEditor order_;
  FieldSelection fields_;
  FilterEditor filter_;
  ExportRunnerFactory makeRunner_;
  std::unique_ptr<ExportRunner> runner_;
  long shownNode_ = -1;
  bool validating_ = false;
};

}  // namespace velmar::wizard
