#pragma once

#include "platform/controls/ComboBox.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/CommonDialog.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/Menu.h"
#include "platform/controls/OptionButton.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/ProgressBar.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/Timer.h"

namespace velmar::wizard {

/// The controls of the wizard's window with the captions, settings and tab order of its design. Nothing is
/// wired to them here. The state of the wizard lives in these controls.
class ExportControls {
 public:
  /// The help topic of the window.
  static constexpr long kHelpTopic = 138;

  // Elements of the arrays.
  enum : int { kAdd = 0, kAddAll = 1, kTake = 2, kTakeAll = 3 };          // cmdAgregarQuitar
  enum : int { kFieldUp = 0, kFieldDown = 1 };                            // cmdCampos
  enum : int { kComplete = 0, kPartial = 1 };                             // optExportar
  enum : int { kOrderRemove = 0, kOrderUp = 1, kOrderDown = 2 };          // cmdOrden
  enum : int { kFilterClear = 0, kFilterAssign = 1, kFilterRemove = 2 };  // cmdFiltro
  enum : int { kLeave = 0, kExport = 1, kHelp = 2, kLoadTemplate = 3, kSaveTemplate = 4 };  // cmdExportar

  ExportControls();
  ExportControls(const ExportControls&) = delete;
  ExportControls& operator=(const ExportControls&) = delete;

  /// Every control of the window but the timers, which are loaded as they are needed. In no particular order.
  template <typename Visit>
  void ForEachControl(Visit visit) {
    const auto each = [&](auto& array) { array.ForEach([&](auto& control, int) { visit(control); }); };
    each(fraExportar);
    each(lblExportar);
    each(cmdAgregarQuitar);
    each(cmdCampos);
    each(optExportar);
    each(cmdOrden);
    each(cmdFiltro);
    each(cmdExportar);
    visit(cboExportar);
    visit(lstDisponibles);
    visit(msgSeleccionados);
    visit(cmdVerDatos);
    visit(lstOrden);
    visit(lstOperadores);
    visit(txtFiltro);
    visit(prgExportar);
    visit(dlgExportar);
  }

  // The frames come first and so end last: the controls in them name them as their containers.
  controls::ControlArray<controls::Frame> fraExportar{"fraExportar"};
  controls::ControlArray<controls::Label> lblExportar{"lblExportar"};
  controls::ComboBox cboExportar{"cboExportar"};
  controls::ListBox lstDisponibles{"lstDisponibles"};
  controls::ControlArray<controls::CommandButton> cmdAgregarQuitar{"cmdAgregarQuitar"};
  controls::Grid msgSeleccionados{"msgSeleccionados"};
  controls::CommandButton cmdVerDatos{"cmdVerDatos", "&Ver datos"};
  controls::ControlArray<controls::CommandButton> cmdCampos{"cmdCampos"};
  controls::ControlArray<controls::OptionButton> optExportar{"optExportar"};
  controls::ListBox lstOrden{"lstOrden"};
  controls::ControlArray<controls::CommandButton> cmdOrden{"cmdOrden"};
  controls::ListBox lstOperadores{"lstOperadores"};
  controls::TextBox txtFiltro{"txtFiltro"};
  controls::ControlArray<controls::CommandButton> cmdFiltro{"cmdFiltro"};
  controls::ControlArray<controls::CommandButton> cmdExportar{"cmdExportar"};
  controls::ProgressBar prgExportar{"prgExportar"};
  controls::CommonDialog dlgExportar{"dlgExportar"};
  controls::ControlArray<controls::Timer> tmrExportacion{"tmrExportacion"};
  controls::Menu mnuEmergente{"mnuEmergente"};

 private:
  void Name();
  void Contain();
  void OrderByTab();

  controls::OptionGroup relation_;
};

}  // namespace velmar::wizard
