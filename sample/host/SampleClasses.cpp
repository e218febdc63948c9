#include "sample/host/SampleClasses.h"

#include <memory>

#include "host/interfaces/HostObjects.h"
#include "platform/com/ClassRegistry.h"
#include "sample/AccountCodec.h"
#include "sample/host/SampleApi.h"

namespace velmar::sample {

namespace {

constexpr com::Guid kApiClass{0x91C4E0A7, 0x2F5B, 0x4D38, {0xB6, 0x0C, 0x58, 0xA3, 0xE1, 0x7D, 0x29, 0xF4}};

}  // namespace

void RegisterSampleClasses(toolkit::Toolkit& toolkit, const std::string& title) {
  com::ClassRegistry& classes = com::ClassRegistry::Instance();
  classes.Register(
      {kHostApiProgId, kApiClass, [&toolkit, title] { return std::make_shared<SampleApi>(toolkit, title); }});
  classes.Register(
      {"VelmarCuentas.cCuentaCodec", kCuentaCodecClassId, [] { return std::make_shared<AccountCodec>(); }});
}

}  // namespace velmar::sample
