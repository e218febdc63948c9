#include "sample/command/WizardSession.h"

#include <utility>

#include "host/ComponentSite.h"
#include "host/cPrincipal.h"
#include "platform/text/Search.h"
#include "sample/host/SampleClasses.h"
#include "wizard/frmExportacion.h"

namespace velmar::sample {
namespace {

/// What the component runs in, for as long as this object lives.
class UnattendedSite final : public ComponentSite {
 public:
  explicit UnattendedSite(toolkit::Toolkit& toolkit) : toolkit_(toolkit) { cPrincipal().SetSite(this); }
  UnattendedSite(const UnattendedSite&) = delete;
  UnattendedSite& operator=(const UnattendedSite&) = delete;
  ~UnattendedSite() override { cPrincipal().SetSite(nullptr); }

  toolkit::Toolkit& Surroundings() override { return toolkit_; }

 private:
  toolkit::Toolkit& toolkit_;
};

}  // namespace

WizardSession::WizardSession(SampleHost::Settings settings)
    : settings_(std::move(settings)), host_(std::make_shared<SampleHost>(settings_)) {
  user_.AlwaysAnswer(toolkit::kYes, "cancelar la exportación");
}

void WizardSession::Run(const std::function<void(wizard::frmExportacion&)>& work) {
  RegisterSampleClasses(user_, settings_.title);
  const UnattendedSite site(user_);
  user_.WhenShown("frmExportacion", [&](toolkit::Form& shown) {
    work(dynamic_cast<wizard::frmExportacion&>(shown));
    shown.UserClose();
  });
  cPrincipal().PasarDatos(host_);
}

std::string WizardSession::Messages() const {
  std::string messages;
  for (const toolkit::Record& box : user_.Records(toolkit::Record::Kind::kBox)) {
    messages += (messages.empty() ? "" : "\n") + box.text;
  }
  return text::Replace(messages, "\r", "\n");
}

}  // namespace velmar::sample
