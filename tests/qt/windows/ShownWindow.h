#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QVariant>
#include <memory>
#include <stdexcept>

#include "platform/controls/Control.h"
#include "platform/toolkit/Form.h"
#include "qt/toolkit/FormWindow.h"
#include "qt/views/ControlLink.h"
#include "qt/windows/MakeWindow.h"

namespace velmar::qt {

/// The widget of the window that shows the control.
template <typename Widget = QWidget>
Widget& ViewOf(const QWidget& window, const controls::Control& control) {
  for (Widget* widget : window.findChildren<Widget*>()) {
    const QVariant handle = widget->property(kHandleProperty);
    if (handle.isValid() && handle.toLongLong() == control.hWnd()) return *widget;
  }
  throw std::logic_error("no view of " + control.Name());
}

/// A form's window on the screen, and the user's mouse and keyboard before it. The form is borrowed.
class ShownWindow {
 public:
  explicit ShownWindow(toolkit::Form& form) : window_(MakeWindow(form, nullptr)) {
    window_->Present();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    window_->Start();
    Settle();
  }

  FormWindow& Window() const { return *window_; }
  template <typename Widget = QWidget>
  Widget& View(const controls::Control& control) const {
    return ViewOf<Widget>(*window_, control);
  }

  void Click(const controls::Control& control) const {
    QTest::mouseClick(&View(control), Qt::LeftButton);
    Settle();
  }
  /// A row of a list or grid, from 0.
  void ClickRow(const controls::Control& control, int row, Qt::KeyboardModifiers keys = Qt::NoModifier,
                Qt::MouseButton button = Qt::LeftButton) const {
    QTest::mouseClick(View<QAbstractItemView>(control).viewport(), button, keys, Place(control, row));
    Settle();
  }
  void DoubleClickRow(const controls::Control& control, int row) const {
    ClickRow(control, row);
    QTest::mouseDClick(View<QAbstractItemView>(control).viewport(), Qt::LeftButton, {}, Place(control, row));
    Settle();
  }
  /// A key at the widget with the focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier) const {
    QTest::keyClick(QApplication::focusWidget(), key, keys);
    Settle();
  }
  void Type(const char* text) const {
    QTest::keyClicks(QApplication::focusWidget(), text);
    Settle();
  }
  /// The tab key visits the controls in their order and comes back, and so does the way backwards.
  void VisitByTab() const {
    const auto order = window_->Shown().Scope().TabOrder();
    order.front()->SetFocus();
    for (const controls::Control* control : order) {
      EXPECT_EQ(QApplication::focusWidget(), &View(*control)) << control->Name();
      Press(Qt::Key_Tab);
    }
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &View(*order.back()));
    Press(Qt::Key_Tab);
  }
  /// What was put off happens.
  static void Settle() { QApplication::processEvents(); }

 private:
  QPoint Place(const controls::Control& control, int row) const {
    const auto& view = View<QAbstractItemView>(control);
    return view.visualRect(view.model()->index(row, 0)).center();
  }

  std::unique_ptr<FormWindow> window_;
};

}  // namespace velmar::qt
