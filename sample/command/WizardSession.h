#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/toolkit/ScriptedToolkit.h"
#include "sample/host/SampleHost.h"

namespace velmar::wizard {
class frmExportacion;
}

namespace velmar::sample {

/// One opening of the wizard without a window, by a host of its own. Nothing in it waits for an answer: boxes
/// are kept, a running export is cancelled when its window is closed, and a question that nobody foresaw is
/// an error.
class WizardSession {
 public:
  explicit WizardSession(SampleHost::Settings settings);

  /// Who plays the user.
  toolkit::ScriptedToolkit& User() noexcept { return user_; }
  SampleHost& Host() noexcept { return *host_; }
  const std::shared_ptr<SampleHost>& HostObject() const noexcept { return host_; }

  /// Opens the wizard, does the work in its window, and closes it unless the work has. RuntimeError as the
  /// work and the wizard raise it.
  void Run(const std::function<void(wizard::frmExportacion&)>& work);

  /// What the boxes have said, a line each or more.
  std::string Messages() const;

 private:
  SampleHost::Settings settings_;
  toolkit::ScriptedToolkit user_;
  std::shared_ptr<SampleHost> host_;
};

}  // namespace velmar::sample
