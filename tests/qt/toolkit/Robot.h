#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDeadlineTimer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>
#include <string>
#include <utility>

#include "qt/toolkit/FormWindow.h"

namespace velmar::testing {

/// Plays the user while the program waits in windows: each step waits until a window shows, then acts in it.
/// A step whose window does not come fails the test and closes what is open, so that nothing waits for ever.
class Robot {
 public:
  using Which = std::function<bool(QWidget& window)>;
  using Action = std::function<void(QWidget& window)>;

  Robot() { Schedule(); }
  ~Robot() { EXPECT_TRUE(steps_.empty()) << "never came: " << (steps_.empty() ? "" : steps_.front().name); }

  void When(const std::string& name, Which which, Action action) {
    steps_.push_back({name, std::move(which), std::move(action)});
  }
  /// The modal window of the form of this name.
  template <typename Window = qt::FormWindow>
  void InWindow(const std::string& name, const std::type_identity_t<std::function<void(Window&)>>& action) {
    const auto isIt = [name](QWidget& window) {
      const auto* form = dynamic_cast<Window*>(&window);
      return form != nullptr && form->Started() && QApplication::activeModalWidget() == form &&
             form->objectName().toStdString() == name;
    };
    When(name, isIt, [action](QWidget& window) { action(dynamic_cast<Window&>(window)); });
  }
  /// The modal window of this class.
  template <typename Window>
  void InModal(const std::string& name, const std::function<void(Window&)>& action) {
    const auto isIt = [](QWidget& window) {
      return dynamic_cast<Window*>(&window) != nullptr && QApplication::activeModalWidget() == &window;
    };
    When(name, isIt, [action](QWidget& window) { action(dynamic_cast<Window&>(window)); });
  }

  /// Clicks the visible button of this text, in which '&' does not count.
  static void Press(QWidget& window, const QString& text) {
    for (auto* button : window.findChildren<QAbstractButton*>()) {
      if (button->isVisible() && button->text().remove('&') == text) {
        QTest::mouseClick(button, Qt::LeftButton);
        return;
      }
    }
    ADD_FAILURE() << "no button " << text.toStdString();
  }

 private:
  struct Step {
    std::string name;
    Which which;
    Action action;
  };

  void Schedule() {
    QTimer::singleShot(2, &context_, [this] {
      Schedule();  // first: the action may open the window of the next step
      Act();
    });
  }

  void Act() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (steps_.empty() || !window->isVisible() || !steps_.front().which(*window)) continue;
      const Action action = std::move(steps_.front().action);
      steps_.pop_front();
      patience_.setRemainingTime(kPatience);
      action(*window);
      patience_.setRemainingTime(kPatience);
      return;
    }
    if (steps_.empty() && QApplication::activeModalWidget() == nullptr) patience_.setRemainingTime(kPatience);
    if (!patience_.hasExpired()) return;
    ADD_FAILURE() << "did not come: " << (steps_.empty() ? "the end" : steps_.front().name);
    steps_.clear();
    QApplication::closeAllWindows();
    QCoreApplication::exit(1);
  }

  static constexpr int kPatience = 10000;
  QObject context_;
  std::deque<Step> steps_;
  QDeadlineTimer patience_{kPatience};
};

}  // namespace velmar::testing
