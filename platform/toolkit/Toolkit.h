#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/FileChooser.h"
#include "platform/toolkit/Clock.h"
#include "platform/toolkit/MessageLoop.h"
#include "platform/toolkit/MsgBoxStyle.h"
#include "platform/toolkit/Picture.h"

namespace velmar::controls {
class Menu;
}

namespace velmar::toolkit {

class Form;

/// What forms ask of their surroundings. A derived toolkit shows things; the rules that hold for all of them
/// stand here. It outlives every form made with it.
class Toolkit : public controls::FileChooser {
 public:
  /// The clock is borrowed.
  explicit Toolkit(const Clock& clock);
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;

  MessageLoop& Loop() noexcept { return loop_; }
  /// One turn of the message loop.
  void DoEvents() { loop_.DoEvents(); }

  /// Shows a message box and gives the button that was pressed, one of MsgBoxButtons(style). Texts go through
  /// untouched; lines end with a carriage return, a line feed or both.
  MsgBoxResult MsgBox(const std::string& text, long style, const std::string& title);
  virtual void Beep() = 0;

  /// The pointer's shape: 0 the default, 11 the hourglass.
  int MousePointer() const noexcept { return pointer_; }
  void MousePointer(int shape);

  const std::string& HelpFile() const noexcept { return helpFile_; }
  void HelpFile(std::string file) { helpFile_ = std::move(file); }
  /// The F1 key: opens the help file at the topic of the control with the focus, or of what holds it.
  void UserHelp();

  /// The keys go to the control with the focus: plain characters, {F1}, {ENTER} or ~, {ESC}, {TAB}. With
  /// `wait` they are handled before this returns, otherwise in the next turn of the loop. Raises
  /// kInvalidProcedureCall for another name in braces.
  void SendKeys(std::string_view keys, bool wait);

  /// Opens a menu at the pointer and runs the entry that the user chooses.
  void PopupMenu(const controls::Menu& menu);
  static Picture LoadPicture(std::string_view path) { return Picture::Load(path); }

  /// The innermost modal window, nullptr if none shows.
  Form* ActiveForm() const noexcept { return modal_.empty() ? nullptr : modal_.back(); }

  /// For Form::Show: runs the window until it is not visible any more. The windows below it take no user
  /// actions meanwhile.
  void ShowModal(Form& form);
  /// For Form: it is about to be repainted.
  virtual void Refreshing(Form& /*form*/) {}
  /// For Form: a failure at its end that nobody could be told of.
  virtual void LostFailure(const std::string& /*form*/) noexcept {}

 protected:
  /// Puts the form on the screen, calls its Activate, and handles events until it is not visible any more.
  virtual void RunModal(Form& form) = 0;
  virtual MsgBoxResult ShowBox(const std::string& text, long style, const std::string& title) = 0;
  virtual void PointerChanged(int shape) = 0;
  /// Gives the index of the entry chosen, -1 for none.
  virtual int ChooseFromMenu(const controls::Menu& menu) = 0;
  virtual void OpenHelp(const std::string& file, long topic) = 0;

 private:
  void Press(const std::string& key);

  MessageLoop loop_;
  std::string helpFile_;
  std::vector<Form*> modal_;
  int pointer_ = 0;
};

}  // namespace velmar::toolkit
