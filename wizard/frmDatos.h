#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "host/interfaces/FailureReport.h"
#include "host/interfaces/UserMessages.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/OptionButton.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/ProgressBar.h"
#include "platform/controls/TextBox.h"
#include "platform/error/ErrObject.h"
#include "platform/toolkit/Form.h"

namespace ADODB {
class Recordset;
}

namespace velmar {
class HostApi;
class cCuentaCodec;
}  // namespace velmar

namespace velmar::wizard {

/// The dialog that gives a value for a filter: the user types it, or picks one that the field has in the
/// database. It lives for one use: make it with toolkit::MakeForm, set mintIDCampo, show it, read
/// mstrValorCampoElegido and unload it. It reaches the host through `objHost`, whose `conGestion` must be
/// open.
class frmDatos : public toolkit::Form {
 public:
  // Elements of optDatos, fraDatos and lblDatos, and of cmdDatos.
  enum : int { kTyped = 0, kPicked = 1 };
  enum : int { kCancel = 0, kAccept = 1 };

  /// The catalogue is borrowed.
  frmDatos(toolkit::Toolkit& toolkit, const Collection<cCampos>& mcolCampos);
  ~frmDatos() override;

  /// The field's number in the catalogue.
  std::int16_t mintIDCampo = 0;
  /// The value as it was typed or as the list showed it; empty if none was chosen.
  std::string mstrValorCampoElegido;

  // The frames come first and so end last: the controls in them name them as their containers.
  controls::ControlArray<controls::Frame> fraDatos{"fraDatos"};
  controls::ControlArray<controls::OptionButton> optDatos{"optDatos"};
  controls::ControlArray<controls::Label> lblDatos{"lblDatos"};
  controls::TextBox txtDatos{"txtDatos"};
  controls::ListBox lstDatos{"lstDatos"};
  controls::ProgressBar prgDatos{"prgDatos"};
  controls::ControlArray<controls::CommandButton> cmdDatos{"cmdDatos"};

  /// 0: the value is typed, 1: it is picked from the list.
  void optDatos_Click(int index);
  /// 0 leaves without a value, 1 with it.
  void cmdDatos_Click(int index);
  void lstDatos_DblClick();

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Unload(bool& Cancel) override;

 private:
  void AddControls();
  void fillValorCampos();
  void fillLista(ADODB::Recordset& rows, long count, const std::string& nombreInterno, ErrObject& Err);
  std::string ShownAccount(const std::string& value, std::shared_ptr<cCuentaCodec>& codec) const;

  UserMessages messages_;
  const Collection<cCampos>& mcolCampos_;
  controls::OptionGroup modes_;
  std::shared_ptr<HostApi> objApi_;
};

}  // namespace velmar::wizard
