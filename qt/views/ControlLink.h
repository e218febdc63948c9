#pragma once

#include <functional>
#include <memory>

#include "platform/controls/Control.h"
#include "platform/controls/ControlObserver.h"
#include "qt/views/UserEvents.h"

class QObject;
class QWidget;

namespace velmar::qt {

/// The widget's property that holds the handle (`hWnd`) of the control that it shows.
inline constexpr const char* kHandleProperty = "hWnd";

/// What all views have in common: the widget is enabled, visible, focused and painted as its control says,
/// and bears its tool tip and its name for screen readers; a widget that gets the focus gives it to its
/// control. A view derives from its widget first and from this second. Control and widget are borrowed; when
/// the control ends first, the widget stays, disabled and without effect.
class ControlLink : public controls::ControlObserver {
 public:
  ControlLink(const ControlLink&) = delete;
  ControlLink& operator=(const ControlLink&) = delete;
  ~ControlLink() override;

 protected:
  ControlLink(controls::Control& control, QWidget& widget, UserEvents events);

  /// Runs what the user has done, unless the control is gone.
  void Act(const std::function<void()>& action) const;
  /// False once the control is gone.
  bool Alive() const noexcept { return control_ != nullptr; }

  /// A property that is the view's own concern has changed.
  virtual void Show(controls::Property /*what*/) {}

  void Changed(controls::Control& control, controls::Property what) override;
  void FocusRequested(controls::Control& control) override;
  void RefreshRequested(controls::Control& control) override;
  void RepaintRequested(controls::Control& control) override;
  void Destroyed(controls::Control& control) override;

 private:
  controls::Control* control_;
  QWidget& widget_;
  UserEvents events_;
  std::unique_ptr<QObject> focusFilter_;
};

}  // namespace velmar::qt
