#include "platform/toolkit/Form.h"

#include <utility>

#include "platform/controls/CommonDialog.h"
#include "platform/controls/Control.h"
#include "platform/controls/Timer.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/FormObserver.h"
#include "platform/toolkit/Toolkit.h"

namespace velmar::toolkit {

Form::Form(Toolkit& toolkit, std::string name) : toolkit_(toolkit), name_(std::move(name)) {}

Form::~Form() = default;

template <typename Notice>
void Form::Notify(Notice notice) {
  observers_.Notify(notice);
}

void Form::Caption(std::string caption) {
  caption_ = std::move(caption);
  Notify([this](FormObserver& observer) { observer.FormChanged(*this); });
}

void Form::Icon(Picture icon) {
  icon_ = std::move(icon);
  Notify([this](FormObserver& observer) { observer.FormChanged(*this); });
}

void Form::Enabled(bool enabled) {
  scope_.Enabled(enabled);
  Notify([this](FormObserver& observer) { observer.FormChanged(*this); });
}

void Form::Load() {
  if (loaded_) return;
  loaded_ = true;
  try {
    Form_Load();
  } catch (...) {
    loaded_ = false;
    throw;
  }
}

void Form::Show() {
  if (visible_) {
    throw RuntimeError(kInvalidProcedureCall, "La ventana \"" + name_ + "\" ya se está mostrando.", name_);
  }
  const auto kept = weak_from_this().lock();
  Load();
  if (!loaded_) return;
  visible_ = true;
  try {
    toolkit_.ShowModal(*this);
  } catch (...) {
    Disappear();
    throw;
  }
  Disappear();
}

void Form::Hide() {
  Disappear();
}

void Form::Unload() {
  if (!loaded_ || unloading_) return;
  const auto kept = weak_from_this().lock();
  unloading_ = true;
  bool cancel = false;
  try {
    Form_Unload(cancel);
  } catch (...) {
    unloading_ = false;
    loaded_ = false;
    Disappear();
    throw;
  }
  unloading_ = false;
  if (cancel) return;
  loaded_ = false;
  Disappear();
}

void Form::Refresh() {
  toolkit_.Refreshing(*this);
  Notify([this](FormObserver& observer) { observer.FormRefreshRequested(*this); });
}

void Form::PopupMenu(const controls::Menu& menu) {
  toolkit_.PopupMenu(menu);
}

bool Form::UserClose() {
  if (!visible_ || !scope_.CanAct()) return false;
  Unload();
  return true;
}

void Form::Observe(FormObserver& observer) {
  observers_.Add(observer);
}

void Form::Unobserve(FormObserver& observer) noexcept {
  observers_.Remove(observer);
}

void Form::Initialize() {
  Form_Initialize();
  initialized_ = true;
}

void Form::Terminate() noexcept {
  if (!initialized_) return;
  // There is no caller left to tell: a failure goes where those of events go.
  for (const bool unloading : {true, false}) {
    try {
      toolkit_.Loop().Dispatch([this, unloading] {
        if (unloading) {
          Unload();
        } else {
          Form_Terminate();
        }
      });
    } catch (...) {
      toolkit_.LostFailure(name_);
    }
  }
}

void Form::Add(controls::Control& control) {
  scope_.Add(control);
}

void Form::Add(controls::Timer& timer) {
  scope_.Add(timer);
  timer.Service(&toolkit_.Loop());
}

void Form::Add(controls::CommonDialog& dialog) {
  scope_.Add(dialog);
  dialog.Chooser(&toolkit_);
}

void Form::Disappear() {
  if (!visible_) return;
  visible_ = false;
  Notify([this](FormObserver& observer) { observer.FormHidden(*this); });
}

}  // namespace velmar::toolkit
