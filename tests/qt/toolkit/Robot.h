#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
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

  Robot() {
    waited_.start();
    Schedule();
  }
  Robot(const Robot&) = delete;
  Robot& operator=(const Robot&) = delete;
  ~Robot() { EXPECT_TRUE(steps_.empty()) << "never came: " << (steps_.empty() ? "" : steps_.front().name); }

  void When(std::string name, Which which, Action action) {
    steps_.push_back({std::move(name), std::move(which), std::move(action)});
  }
  /// The modal window of the form of this name.
  void InWindow(const std::string& name, Action action) {
    When(
        name,
        [name](QWidget& window) {
          const auto* form = dynamic_cast<qt::FormWindow*>(&window);
          return form != nullptr && form->Started() && QApplication::activeModalWidget() == form &&
                 form->objectName().toStdString() == name;
        },
        std::move(action));
  }
  /// The modal window of this class.
  template <typename Window>
  void InModal(const std::string& name, std::function<void(Window&)> action) {
    When(
        name,
        [](QWidget& window) {
          return dynamic_cast<Window*>(&window) != nullptr && QApplication::activeModalWidget() == &window;
        },
        [action = std::move(action)](QWidget& window) { action(dynamic_cast<Window&>(window)); });
  }
  bool Done() const { return steps_.empty(); }

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
      waited_.restart();
      action(*window);
      waited_.restart();
      return;
    }
    if (steps_.empty() && QApplication::activeModalWidget() == nullptr) waited_.restart();
    if (!waited_.hasExpired(kPatience)) return;
    ADD_FAILURE() << "did not come: " << (steps_.empty() ? "the end" : steps_.front().name);
    steps_.clear();
    QApplication::closeAllWindows();
    QCoreApplication::exit(1);
  }

  static constexpr int kPatience = 10000;
  QObject context_;
  std::deque<Step> steps_;
  QElapsedTimer waited_;
};

}  // namespace velmar::testing
