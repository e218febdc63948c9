#pragma once

#include "qt/toolkit/FormWindow.h"
#include "qt/windows/ViewMaker.h"

class QLayout;

namespace velmar::wizard {
class frmExportacion;
}

namespace velmar::qt {

/// The wizard's window.
class ExportWindow : public FormWindow {
 public:
  /// The form is borrowed.
  ExportWindow(wizard::frmExportacion& form, QWidget* parent);

 private:
  QLayout* FieldBand();
  QLayout* TransferButtons();
  QLayout* SelectionHead();
  QLayout* MoveButtons();
  QLayout* Relation();
  QWidget* OrderFrame();
  QWidget* FilterFrame();
  QLayout* BottomRow();

  wizard::frmExportacion& exportacion_;
  ViewMaker views_;
};

}  // namespace velmar::qt
