#pragma once

#include <memory>
#include <string>

#include "host/ComponentSite.h"
#include "host/Principal.h"
#include "sample/host/SampleHost.h"

namespace velmar::sample {

/// The wizard as this host reaches it: the component's library is loaded, and its object called.
class WizardCall final : public ComponentSite {
 public:
  /// The library that carries the component, for the system's loader to find.
  static constexpr const char* kLibrary = "libVelmarExportacion.so.0";

  /// The toolkit is borrowed. Raises kCannotCreateObject if the library cannot be loaded.
  WizardCall(toolkit::Toolkit& toolkit, SampleHost::Settings settings, const std::string& library = kLibrary);
  WizardCall(const WizardCall&) = delete;
  WizardCall& operator=(const WizardCall&) = delete;
  ~WizardCall() override;

  /// Opens the wizard and returns when it is closed. Failures are those of PasarDatos.
  void Open();

  toolkit::Toolkit& Surroundings() override { return toolkit_; }

 private:
  toolkit::Toolkit& toolkit_;
  SampleHost::Settings settings_;
  std::shared_ptr<Principal> principal_;
};

}  // namespace velmar::sample
