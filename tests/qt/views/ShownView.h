#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <functional>
#include <utility>

#include "platform/controls/FocusScope.h"
#include "qt/views/UserEvents.h"

namespace velmar::qt {

/// What the user does runs at once.
inline const UserEvents kAtOnce = [](const std::function<void()>& action) { action(); };

/// A window on the screen in which views stand one below the other, and the scope of their controls.
class ShownView {
 public:
  template <typename View, typename Control, typename... More>
  View& Add(Control& control, More&&... more) {
    if (window_.layout() == nullptr) new QVBoxLayout(&window_);
    scope.Add(control);
    auto* view = new View(control, kAtOnce, &window_, std::forward<More>(more)...);
    window_.layout()->addWidget(view);
    return *view;
  }
  /// Shows the window; nothing has the focus yet.
  void Open() {
    window_.resize(400, 300);
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    Settle();
  }
  /// What was put off happens.
  static void Settle() { QApplication::processEvents(); }

  controls::FocusScope scope;

 private:
  QWidget window_;
};

}  // namespace velmar::qt
