#pragma once

#include <QPointer>
#include <QTimer>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/toolkit/NativeQueue.h"
#include "platform/toolkit/SteadyClock.h"
#include "platform/toolkit/Toolkit.h"
#include "qt/toolkit/FormWindow.h"
#include "qt/toolkit/HelpProvider.h"

namespace velmar::qt {

class Application;
class HelpWindow;

/// The toolkit on a screen. While Qt's loop runs, in a modal window, a box or the program's own loop, it runs
/// what is due in the message loop; a turn of the message loop handles Qt's events.
///
/// A failure of an event, of a timer or of a click, is told in a box and on the standard error stream, and
/// the window stays open. While such a box shows, further failures are only written.
class QtToolkit : public toolkit::Toolkit, private toolkit::NativeQueue {
 public:
  /// Application and clock are borrowed.
  QtToolkit(Application& application, WindowFactory makeWindow,
            const toolkit::Clock& clock = toolkit::SteadyClock::Instance());
  ~QtToolkit() override;

  /// The program's own window: the first form stands in front of it. Borrowed; nullptr for none.
  void Owner(QWidget* owner) { owner_ = owner; }
  void Help(HelpProvider provider) { help_ = std::move(provider); }

  void Beep() override;
  void LostFailure(const std::string& form) noexcept override;
  std::optional<std::string> ChooseFileToSave(const controls::CommonDialog& dialog) override;

 protected:
  void RunModal(toolkit::Form& form) override;
  toolkit::MsgBoxResult ShowBox(const std::string& text, long style, const std::string& title) override;
  void PointerChanged(int shape) override;
  int ChooseFromMenu(const controls::Menu& menu) override;
  void OpenHelp(const std::string& file, long topic) override;

 private:
  class UserTurn;

  bool Process() override;
  void RunDue();
  void Wake();
  void AwaitExposure(QWidget& window);
  void TellFailure(const RuntimeError& failure);
  QWidget* Parent() const;

  Application& application_;
  WindowFactory makeWindow_;
  HelpProvider help_;
  QPointer<QWidget> owner_;
  std::vector<FormWindow*> windows_;  // innermost last
  QPointer<HelpWindow> helpWindow_;
  QTimer timer_;
  bool pumping_ = false;
  bool hourglass_ = false;
  bool telling_ = false;
};

}  // namespace velmar::qt
