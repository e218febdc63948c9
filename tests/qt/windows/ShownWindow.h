#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QVariant>
#include <QWidget>
#include <memory>
#include <stdexcept>

#include "platform/controls/Control.h"
#include "platform/toolkit/Form.h"
#include "qt/toolkit/FormWindow.h"
#include "qt/views/ControlLink.h"
#include "qt/windows/MakeWindow.h"

namespace velmar::qt {

/// A form's window on the screen, and the user's mouse and keyboard before it. The form is borrowed.
class ShownWindow {
 public:
  explicit ShownWindow(toolkit::Form& form) : window_(MakeWindow(form, nullptr)) {
    window_->Present();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    if (form.Scope().ActiveControl() == nullptr) form.Scope().UserTab();
    window_->FollowFocus();
    Settle();
  }

  FormWindow& Window() const { return *window_; }

  /// The widget that shows the control.
  template <typename Widget = QWidget>
  Widget& View(const controls::Control& control) const {
    for (Widget* widget : window_->findChildren<Widget*>()) {
      const QVariant handle = widget->property(kHandleProperty);
      if (handle.isValid() && handle.toLongLong() == control.hWnd()) return *widget;
    }
    throw std::logic_error("no view of " + control.Name());
  }

  void Click(const controls::Control& control) const {
    ClickAt(View(control), View(control).rect().center());
  }
  /// At the left end, where the mark of an option is.
  void Mark(const controls::Control& control) const {
    QWidget& view = View(control);
    ClickAt(view, QPoint(8, view.height() / 2));
  }
  /// A row of a list or grid, from 0.
  void ClickRow(const controls::Control& control, int row, Qt::KeyboardModifiers keys = Qt::NoModifier,
                Qt::MouseButton button = Qt::LeftButton) const {
    ClickAt(*View<QAbstractItemView>(control).viewport(), Place(control, row), keys, button);
  }
  void DoubleClickRow(const controls::Control& control, int row) const {
    ClickRow(control, row);
    QTest::mouseDClick(View<QAbstractItemView>(control).viewport(), Qt::LeftButton, {}, Place(control, row));
    Settle();
  }
  /// Presses at a row, moves row by row to another and releases there.
  void DragRows(const controls::Control& control, int from, int to) const {
    QWidget* viewport = View<QAbstractItemView>(control).viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, Place(control, from));
    for (int row = from; row != to; row += from < to ? 1 : -1)
      QTest::mouseMove(viewport, Place(control, row));
    QTest::mouseMove(viewport, Place(control, to));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, Place(control, to));
    Settle();
  }
  /// A key at the widget with the focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier) const {
    QTest::keyClick(Focused(), key, keys);
    Settle();
  }
  void Type(const char* text) const {
    QTest::keyClicks(Focused(), text);
    Settle();
  }
  /// What was put off happens.
  static void Settle() { QApplication::processEvents(); }

 private:
  QWidget* Focused() const {
    QWidget* focused = QApplication::focusWidget();
    return focused != nullptr ? focused : window_.get();
  }
  QPoint Place(const controls::Control& control, int row) const {
    const auto& view = View<QAbstractItemView>(control);
    return view.visualRect(view.model()->index(row, 0)).center();
  }
  static void ClickAt(QWidget& widget, QPoint at, Qt::KeyboardModifiers keys = Qt::NoModifier,
                      Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&widget, button, keys, at);
    Settle();
  }

  std::unique_ptr<FormWindow> window_;
};

}  // namespace velmar::qt
