#include "platform/controls/Timer.h"

#include <string>
#include <utility>

#include "platform/controls/TimerService.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::controls {

Timer::Timer(std::string name) : Control(std::move(name)) {
  Enabled(false);
}

Timer::~Timer() {
  if (service_ != nullptr) service_->Forget(*this);
}

void Timer::Service(TimerService* service) {
  if (service_ != nullptr) service_->Forget(*this);
  service_ = service;
  Restart();
}

void Timer::Interval(long milliseconds) {
  constexpr long kLongest = 65535;
  if (milliseconds < 0 || milliseconds > kLongest) {
    throw RuntimeError(kInvalidPropertyValue,
                       "El intervalo " + std::to_string(milliseconds) + " del temporizador \"" + Name() +
                           "\" no vale: debe estar entre 0 y 65535 milisegundos.",
                       Name());
  }
  interval_ = milliseconds;
  Restart();
}

void Timer::Restart() {
  if (service_ == nullptr) return;
  service_->Disarm(*this);
  if (Enabled() && interval_ > 0) service_->Arm(*this);
}

}  // namespace velmar::controls
