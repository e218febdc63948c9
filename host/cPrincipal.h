#pragma once

#include <cstdint>
#include <memory>

#include "host/Principal.h"
#include "platform/com/Object.h"

namespace velmar {

/// The public class of the component. It holds no state: the host object, the site and the window's default
/// instance belong to the module.
class cPrincipal final : public com::Object, public Principal {
 public:
  void SetSite(ComponentSite* site) override;
  void PasarDatos(const std::shared_ptr<HostApplication>& obj, std::int32_t* lngIDRecibo = nullptr) override;
};

}  // namespace velmar
