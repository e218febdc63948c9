#pragma once

#include <functional>

#include "host/interfaces/CurrentError.h"
#include "platform/com/ClassRegistry.h"

namespace velmar::toolkit {
class Toolkit;
}

namespace velmar {

/// What a host program brings for the component to run in: the toolkit that shows its windows, and the
/// classes that the host makes itself. A component loaded as a library has its own copy of all module-level
/// state, so what both must share goes through here; the bodies below run on the host's side. Derive from it
/// in the host and hand it to Principal::SetSite.
class ComponentSite {
 public:
  virtual ~ComponentSite() = default;

  /// Shows windows, boxes and dialogs. A ScriptedToolkit runs the wizard unattended.
  virtual toolkit::Toolkit& Surroundings() = 0;
  /// The classes that `CreateObject` finds for the component before it looks into the user's class file.
  virtual const com::ClassRegistry& Classes() { return com::ClassRegistry::Instance(); }
  /// Runs `verError` while `failure` is the host's current error.
  virtual void Report(const RuntimeError& failure, const std::function<void()>& verError) {
    const CurrentErrorScope current(failure);
    verError();
  }
};

}  // namespace velmar
