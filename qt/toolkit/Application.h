#pragma once

#include <QApplication>
#include <cstdint>
#include <exception>
#include <functional>
#include <utility>

namespace velmar::qt {

/// The program's one Qt application, which speaks Spanish as Spain writes it: numbers, dates and Qt's own
/// texts. Failures of event handlers end here and not in Qt, which could not go on behind them.
class Application : public QApplication {
 public:
  /// `argc` and `argv` are used as long as the application lives.
  Application(int& argc, char** argv);

  /// Takes the failures of event handlers; without a handler they pass on and end the program.
  void OnFailure(std::function<void(std::exception_ptr)> handler) { failed_ = std::move(handler); }
  /// How many presses of keys and mouse buttons, turns of the wheel and closed windows there have been.
  std::uint64_t UserEvents() const noexcept { return userEvents_; }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  std::function<void(std::exception_ptr)> failed_;
  std::uint64_t userEvents_ = 0;
};

}  // namespace velmar::qt
