#include "sample/window/WizardCall.h"

#include <utility>

#include "platform/com/Server.h"
#include "sample/host/SampleClasses.h"

namespace velmar::sample {

WizardCall::WizardCall(toolkit::Toolkit& toolkit, SampleHost::Settings settings, const std::string& library)
    : toolkit_(toolkit), settings_(std::move(settings)) {
  RegisterSampleClasses(toolkit_, settings_.title);
  principal_ = com::Query<Principal>(com::CreateFromLibrary(library, kPrincipalClass));
  principal_->SetSite(this);
}

WizardCall::~WizardCall() {
  principal_->SetSite(nullptr);
}

void WizardCall::Open() {
  principal_->PasarDatos(std::make_shared<SampleHost>(settings_));
}

}  // namespace velmar::sample
