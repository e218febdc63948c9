#pragma once

#include <functional>
#include <string>

#include "wizard/OpenWizard.h"
// Behind the host's test headers, which name the test library's own namespace.
#include "platform/ado/Connection.h"
#include "qt/windows/ShownWindow.h"

namespace velmar::qt {

/// The wizard in its window.
class ShownWizard : public testing::OpenWizard {
 protected:
  using Window = const ShownWindow&;

  /// Shows the window to `user`, and closes it behind him if he has not.
  void Use(const std::function<void(Window)>& user) {
    office.toolkit.WhenShown("frmExportacion", [user](toolkit::Form& shown) {
      const ShownWindow window(shown);
      user(window);
      shown.Unload();
    });
    form->Show();
  }
  /// What the user does in the next dialog of this name.
  template <typename FormType>
  void UseDialog(const std::string& name, const std::function<void(Window, FormType&)>& user) {
    office.toolkit.WhenShown(name, [user](toolkit::Form& shown) {
      const ShownWindow window(shown);
      user(window, dynamic_cast<FormType&>(shown));
    });
  }
  /// A click on the node with this place in the list.
  void ChooseNode(Window window, long index) {
    window.View(form->cboExportar).setFocus();
    while (form->cboExportar.ListIndex() < index) window.Press(Qt::Key_Down);
  }
  /// All fields of the first node, in their order, in the grid.
  void AddAll(Window window) {
    ChooseNode(window, 0);
    window.Click(form->cmdAgregarQuitar(Controls::kAddAll));
  }
  static std::vector<std::string> Texts(const controls::ListControl& list) {
    std::vector<std::string> texts;
    for (long i = 0; i < list.ListCount(); ++i) texts.push_back(list.List(i));
    return texts;
  }
  std::vector<std::string> Literals() const {
    std::vector<std::string> texts;
    for (long row = 1; row < form->msgSeleccionados.Rows(); ++row) {
      texts.push_back(form->msgSeleccionados.TextMatrix(row, wizard::kLiteralColumn));
    }
    return texts;
  }
};

}  // namespace velmar::qt
