#pragma once

#include <memory>

#include "host/interfaces/HostApi.h"
#include "host/interfaces/cCuentaCodec.h"
#include "platform/com/Guid.h"

namespace velmar {

/// The name under which the host registers its API library.
inline constexpr const char* kHostApiProgId = "VelmarApi.cPrincipal";

/// The class identifier under which the host registers its account codec.
inline constexpr com::Guid kCuentaCodecClassId{
    0x8E7C3A14, 0x52BD, 0x4F60, {0x9B, 0x1E, 0xC4, 0x37, 0x0A, 0xD9, 0x65, 0x2F}};

/// A new object of the host's API library. kCannotCreateObject if the host has not registered the class,
/// kMemberNotFound if what it made is no such object.
std::shared_ptr<HostApi> CreateHostApi();

/// A new account codec of the host. Failures as above.
std::shared_ptr<cCuentaCodec> CreateCuentaCodec();

}  // namespace velmar
