#pragma once

#include <cstdint>
#include <memory>

#include "host/ComponentSite.h"
#include "host/interfaces/HostApplication.h"
#include "platform/com/Guid.h"

namespace velmar {

/// The class of the component's one public object, "VelmarExportacion.cPrincipal".
inline constexpr const char* kPrincipalName = "VelmarExportacion.cPrincipal";
inline constexpr com::Guid kPrincipalClass{
    0x3D8F21B6, 0x54E7, 0x4C19, {0xA2, 0x6B, 0x90, 0x1E, 0x7F, 0x48, 0xC5, 0xD3}};

/// The component as a host sees it: an object of kPrincipalClass, asked for this interface with com::Query.
/// It takes a host built with the same compiler; failures are thrown as RuntimeError.
class Principal {
 public:
  virtual ~Principal() = default;

  /// Tells the component, once for the process and before the first PasarDatos, what it runs in; nullptr
  /// takes it back. Borrowed. The site's classes are those that are registered by now.
  virtual void SetSite(ComponentSite* site) = 0;

  /// Opens the export wizard over the host's data and returns when it is closed. The host's two connections
  /// are opened if they are closed, and closed when the wizard ends. `lngIDRecibo` plays no part.
  ///
  /// Failures: kObjectNotSet without a host or a site, kInvalidProcedureCall while the wizard is open, and
  /// whatever keeps the connections from being opened or the wizard from being shown.
  virtual void PasarDatos(const std::shared_ptr<HostApplication>& obj,
                          std::int32_t* lngIDRecibo = nullptr) = 0;
};

}  // namespace velmar
