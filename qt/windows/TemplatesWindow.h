#pragma once

#include "qt/toolkit/FormWindow.h"

namespace velmar::templates {
class frmPlantillas;
}

namespace velmar::qt {

/// The dialog that saves and loads templates.
class TemplatesWindow : public FormWindow {
 public:
  /// The form is borrowed.
  TemplatesWindow(templates::frmPlantillas& form, QWidget* parent);
};

}  // namespace velmar::qt
