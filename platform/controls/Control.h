#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

#include "platform/controls/ControlObserver.h"
#include "platform/controls/ObserverList.h"

namespace velmar::controls {

class FocusScope;

/// What all controls have in common. A form owns its controls; observers and containers are borrowed. Methods
/// that begin with User are what the person at the window does: they do nothing, and say so with false, while
/// the control, one of its containers or its window is disabled or hidden. All others are the program's and
/// work at any time.
class Control {
 public:
  explicit Control(std::string name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  const std::string& Name() const noexcept { return name_; }

  bool Enabled() const noexcept { return enabled_; }
  void Enabled(bool enabled);
  bool Visible() const noexcept { return visible_; }
  void Visible(bool visible);
  /// Place in the tab order, from 0.
  int TabIndex() const noexcept { return tabIndex_; }
  void TabIndex(int index) noexcept { tabIndex_ = index; }
  /// False for a control that the tab key passes over.
  bool TabStop() const noexcept { return tabStop_; }
  void TabStop(bool stop) noexcept { tabStop_ = stop; }
  const std::string& ToolTipText() const noexcept { return toolTip_; }
  void ToolTipText(std::string text);
  /// What a screen reader says; a control without a caption needs it.
  const std::string& AccessibleName() const noexcept { return accessibleName_; }
  void AccessibleName(std::string name) { accessibleName_ = std::move(name); }
  const std::string& Tag() const noexcept { return tag_; }
  void Tag(std::string tag) { tag_ = std::move(tag); }
  /// Help topic, 0 for that of the container.
  long HelpContextID() const noexcept { return helpContext_; }
  void HelpContextID(long topic) noexcept { helpContext_ = topic; }
  /// An opaque number, unlike that of any other control of the process; see User32.h.
  long hWnd() const noexcept { return handle_; }

  /// The control that holds this one, nullptr if the window does. While it is disabled or hidden, so is this
  /// one for the user.
  const Control* Container() const noexcept { return container_; }
  void Container(const Control* container) noexcept { container_ = container; }

  /// True if the control can have the focus.
  virtual bool TakesFocus() const noexcept { return true; }
  bool HasFocus() const noexcept;
  /// Moves the focus here. Raises kInvalidProcedureCall if the control cannot have it now.
  void SetFocus();
  /// The user moves the focus here.
  bool UserFocus();
  /// True if the user can act on the control now.
  bool CanAct() const noexcept;

  /// Painted before the program goes on.
  void Refresh();
  /// Asks for a later repaint, or drops the one that was asked for.
  void Invalidate();
  void Validate() noexcept { needsPaint_ = false; }
  bool NeedsPaint() const noexcept { return needsPaint_; }

  void Observe(ControlObserver& observer);
  void Unobserve(ControlObserver& observer) noexcept;

  std::function<void()> GotFocus;
  std::function<void()> LostFocus;

 protected:
  /// Tells every observer; `notice` takes a ControlObserver&.
  template <typename Notice>
  void Notify(Notice notice) {
    observers_.Notify(notice);
  }
  void NotifyChanged(Property what);
  FocusScope* Scope() const noexcept { return scope_; }
  /// For controls that do something of their own when they are enabled or disabled.
  virtual void EnabledChanged() {}

  static void Raise(const std::function<void()>& event) {
    if (!event) return;
    const std::function<void()> kept = event;  // the handler may replace itself or end the control
    kept();
  }

 private:
  friend class FocusScope;

  std::string name_;
  std::string toolTip_;
  std::string accessibleName_;
  std::string tag_;
  ObserverList<ControlObserver> observers_;
  const Control* container_ = nullptr;
  FocusScope* scope_ = nullptr;
  long handle_;
  long helpContext_ = 0;
  int tabIndex_ = 0;
  bool tabStop_ = true;
  bool enabled_ = true;
  bool visible_ = true;
  bool needsPaint_ = false;
};

}  // namespace velmar::controls
