#pragma once

#include <string>

#include "qt/toolkit/Robot.h"
#include "qt/windows/ShownWindow.h"
#include "wizard/frmExportacion.h"

namespace velmar::sample {

/// What a person does in a form's window, with mouse and keyboard.
class OfficeUser {
 public:
  /// The widget that shows the control.
  template <typename Widget = QWidget>
  static Widget& View(const QWidget& window, const controls::Control& control) {
    return qt::ViewOf<Widget>(window, control);
  }

  static wizard::frmExportacion& Wizard(QWidget& window) {
    return dynamic_cast<wizard::frmExportacion&>(dynamic_cast<qt::FormWindow&>(window).Shown());
  }

  static void Click(const QWidget& window, const controls::Control& control) {
    QTest::mouseClick(&View(window, control), Qt::LeftButton);
  }

  /// A double click on the item of this text.
  static void DoubleClick(const QWidget& window, const controls::ListBox& list, const std::string& item) {
    auto& view = View<QAbstractItemView>(window, list);
    const QModelIndex index = view.model()->index(static_cast<int>(list.FindStringExact(item)), 0);
    if (!index.isValid()) throw std::logic_error("the list has no " + item);
    view.scrollTo(index);
    const QPoint place = view.visualRect(index).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
  }

  /// Takes the field of the node into the grid.
  static void Take(QWidget& window, const std::string& node, const std::string& field) {
    wizard::frmExportacion& form = Wizard(window);
    const long index = form.cboExportar.FindStringExact(node);
    if (form.cboExportar.ListIndex() != index) form.cboExportar.UserChoose(index);
    DoubleClick(window, form.lstDisponibles, field);
  }
};

}  // namespace velmar::sample
