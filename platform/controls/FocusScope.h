#pragma once

#include <vector>

namespace velmar::controls {

class CommandButton;
class Control;

/// The controls of one window: which has the focus, in which order the tab key visits them, and what the
/// Enter and Esc keys press. Controls are borrowed and leave by themselves when they end.
class FocusScope {
 public:
  FocusScope() = default;
  FocusScope(const FocusScope&) = delete;
  FocusScope& operator=(const FocusScope&) = delete;
  ~FocusScope();

  /// Takes the control in; a control belongs to one scope.
  void Add(Control& control);
  void Remove(Control& control) noexcept;
  const std::vector<Control*>& Controls() const noexcept { return controls_; }

  /// The control with the focus, nullptr at the start.
  Control* ActiveControl() const noexcept { return active_; }
  /// Moves the focus: LostFocus of the one that had it, then GotFocus of this one. Nothing if it has it.
  void Focus(Control& control);

  /// While false, no control of the window takes user actions.
  bool Enabled() const noexcept { return enabled_; }
  void Enabled(bool enabled) noexcept { enabled_ = enabled; }
  /// True while another window is modal over this one.
  bool Blocked() const noexcept { return blocked_; }
  void Blocked(bool blocked) noexcept { blocked_ = blocked; }
  bool CanAct() const noexcept { return enabled_ && !blocked_; }

  /// The controls that the tab key visits, in this order: those that can have the focus now.
  std::vector<Control*> TabOrder() const;
  /// The tab key; `back` with the shift key.
  bool UserTab(bool back = false);
  /// The Enter key: presses the button with the focus, else the default button, else goes to the control with
  /// the focus as a key.
  bool UserEnter();
  /// The Esc key: presses the window's cancel button.
  bool UserEscape();

  /// For CommandButton: the others are no longer the default (cancel) button.
  void BecameDefault(const CommandButton& button);
  void BecameCancel(const CommandButton& button);

 private:
  template <typename Test>
  CommandButton* FindButton(Test test) const;

  std::vector<Control*> controls_;
  Control* active_ = nullptr;
  bool enabled_ = true;
  bool blocked_ = false;
};

}  // namespace velmar::controls
