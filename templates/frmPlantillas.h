#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/interfaces/FailureReport.h"
#include "host/interfaces/UserMessages.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/ProgressBar.h"
#include "platform/controls/TextBox.h"
#include "platform/toolkit/Form.h"
#include "templates/TemplateControls.h"
#include "templates/TemplateStore.h"
#include "templates/cConstPlantilla.h"

namespace velmar {
class HostApi;
}

namespace velmar::templates {

/// The dialog in which the user saves the wizard's selection under a name, or loads or deletes one that was
/// saved. It lives for one use: make it with toolkit::MakeForm, set mbytOperacion and show it; it unloads
/// itself. It reaches the host through `objHost`, whose `conGestion` must be open.
///
/// To load and to delete, the item selected in the list counts, whatever stands in the box.
class frmPlantillas : public toolkit::Form {
 public:
  // Elements of cmdPlantilla.
  enum : int { kAccept = 0, kCancel = 1, kDelete = 2 };
  /// The greatest length of a name, in characters.
  static constexpr long kMaxName = 150;

  /// The grid and the sort list of the wizard are borrowed.
  frmPlantillas(toolkit::Toolkit& toolkit, controls::Grid& msgSeleccionados, controls::ListBox& lstOrden);
  ~frmPlantillas() override;

  /// The mode, a value of cConstPlantilla; set it before the dialog loads.
  std::uint8_t mbytOperacion = 0;

  controls::TextBox txtPlantilla{"txtPlantilla"};
  controls::ListBox lstPlantilla{"lstPlantilla"};
  controls::ControlArray<controls::CommandButton> cmdPlantilla{"cmdPlantilla"};
  controls::Label lblPlantilla{"lblPlantilla", "(*) Nombre de la plantilla:"};
  controls::ProgressBar prgPlantilla{"prgPlantilla"};

  void lstPlantilla_Click();
  void lstPlantilla_DblClick();
  void txtPlantilla_GotFocus();
  /// 0 saves or loads, 1 leaves, 2 deletes.
  void cmdPlantilla_Click(int index);

 protected:
  void Form_Load() override;
  void Form_Unload(bool& Cancel) override;

 private:
  const cConstPlantilla& Constants();
  FailureReport Report() const;
  TemplateStore Store() const;
  TemplateStore::Progress Bar();
  void ShowBar();

  void Accept();
  void Delete();
  /// True if there is a template of the name and the user keeps it.
  bool ExistePlantilla(const std::string& name);
  void GuardarPlantilla(const std::string& name);
  void CargarPlantilla();
  void fillPlantillas();
  void EliminarPlantilla();
  /// True if a template is selected in the list; warns if none is.
  bool HasSelection();

  UserMessages messages_;
  TemplateControls selection_;
  std::shared_ptr<HostApi> objApi_;
  std::unique_ptr<cConstPlantilla> constants_;
  std::int32_t idUsuario_ = 0;
  TemplateStore::Existing existing_ = TemplateStore::Existing::kNone;
  bool working_ = false;
};

}  // namespace velmar::templates
