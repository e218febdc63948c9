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

  /// Shows the window to `user`, with all fields of the first node in the grid, and closes it behind him.
  void Use(const std::function<void(Window)>& user) {
    office.toolkit.WhenShown("frmExportacion", [this, user](toolkit::Form& shown) {
      Add(office.kCol, {"Nombre", "Apellidos", "ciudad", "Árbol"});
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
};

}  // namespace velmar::qt
