#include "host/interfaces/HostObjects.h"

#include "platform/com/CreateObject.h"

namespace velmar {

std::shared_ptr<HostApi> CreateHostApi() {
  return com::Query<HostApi>(com::CreateObject(kHostApiProgId));
}

std::shared_ptr<cCuentaCodec> CreateCuentaCodec() {
  return com::Query<cCuentaCodec>(com::CreateObject(kCuentaCodecClassId));
}

}  // namespace velmar
