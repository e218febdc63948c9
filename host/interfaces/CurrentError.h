#pragma once

#include "platform/error/ErrObject.h"

namespace velmar {

/// The failure that is being reported. `VerError` is not handed the failure itself: a host that wants to show
/// number and description reads them here during the call. Number is 0 outside of a report.
const ErrObject& CurrentError() noexcept;

/// Makes a failure the current one as long as this object lives; then the one before it is current again.
class CurrentErrorScope {
 public:
  explicit CurrentErrorScope(const RuntimeError& error);
  ~CurrentErrorScope();
  CurrentErrorScope(const CurrentErrorScope&) = delete;
  CurrentErrorScope& operator=(const CurrentErrorScope&) = delete;

 private:
  ErrObject previous_;
};

}  // namespace velmar
