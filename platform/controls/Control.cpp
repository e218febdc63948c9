#include "platform/controls/Control.h"

#include <utility>

#include "platform/controls/FocusScope.h"
#include "platform/controls/User32.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::controls {

Control::Control(std::string name) : name_(std::move(name)), handle_(RegisterHandle(*this)) {}

Control::~Control() {
  Notify([this](ControlObserver& observer) { observer.Destroyed(*this); });
  if (scope_ != nullptr) scope_->Remove(*this);
  ReleaseHandle(handle_);
}

void Control::Enabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  EnabledChanged();
  NotifyChanged(Property::kEnabled);
}

void Control::Visible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  NotifyChanged(Property::kVisible);
}

void Control::ToolTipText(std::string text) {
  toolTip_ = std::move(text);
  NotifyChanged(Property::kToolTip);
}

bool Control::HasFocus() const noexcept {
  return scope_ != nullptr && scope_->ActiveControl() == this;
}

void Control::SetFocus() {
  if (!TakesFocus() || !CanAct()) {
    throw RuntimeError(kInvalidProcedureCall,
                       "El control \"" + name_ + "\" no puede recibir el foco: está desactivado u oculto.",
                       name_);
  }
  if (scope_ == nullptr || HasFocus()) return;
  Notify([this](ControlObserver& observer) { observer.FocusRequested(*this); });
  scope_->Focus(*this);
}

bool Control::UserFocus() {
  if (!TakesFocus() || !CanAct()) return false;
  if (scope_ != nullptr) scope_->Focus(*this);
  return true;
}

bool Control::CanAct() const noexcept {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->enabled_ || !control->visible_) return false;
  }
  return scope_ == nullptr || scope_->CanAct();
}

void Control::Refresh() {
  needsPaint_ = false;
  Notify([this](ControlObserver& observer) { observer.RefreshRequested(*this); });
}

void Control::Invalidate() {
  needsPaint_ = true;
  Notify([this](ControlObserver& observer) { observer.RepaintRequested(*this); });
}

void Control::Observe(ControlObserver& observer) {
  observers_.Add(observer);
}

void Control::Unobserve(ControlObserver& observer) noexcept {
  observers_.Remove(observer);
}

void Control::NotifyChanged(Property what) {
  Notify([&](ControlObserver& observer) { observer.Changed(*this, what); });
}

}  // namespace velmar::controls
