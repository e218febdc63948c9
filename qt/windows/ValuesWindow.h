#pragma once

#include "qt/toolkit/FormWindow.h"
#include "qt/windows/ViewMaker.h"

class QLayout;

namespace velmar::wizard {
class frmDatos;
}

namespace velmar::qt {

/// The dialog that gives a value for a filter.
class ValuesWindow : public FormWindow {
 public:
  /// The form is borrowed.
  ValuesWindow(wizard::frmDatos& form, QWidget* parent);

 private:
  QLayout* Typed();
  QLayout* Picked();
  QLayout* Buttons();

  wizard::frmDatos& datos_;
  ViewMaker views_;
};

}  // namespace velmar::qt
