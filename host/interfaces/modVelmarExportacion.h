#pragma once

#include <memory>

#include "host/interfaces/HostApplication.h"

namespace velmar {

/// The host application. Every call of `PasarDatos` sets it, nothing clears it, and all routines of the
/// component reach the host through it.
inline std::shared_ptr<HostApplication> objHost;

}  // namespace velmar
