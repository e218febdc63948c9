#include "host/interfaces/HostObjects.h"

#include <gtest/gtest.h>

#include "platform/com/ClassRegistry.h"

namespace velmar {
namespace {

class PlainCodec : public cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override { tramo += "*"; }
  void DecodificarTramo(std::string& tramo) override { tramo.pop_back(); }
};

template <typename Create>
long Failure(Create create) {
  try {
    create();
  } catch (const RuntimeError& failure) {
    return failure.Number();
  }
  return 0;
}

TEST(HostObjects, AreMadeByWhatTheHostRegistered) {
  EXPECT_EQ(Failure(CreateHostApi), kCannotCreateObject);
  EXPECT_EQ(Failure(CreateCuentaCodec), kCannotCreateObject);

  auto& registry = com::ClassRegistry::Instance();
  const com::Guid apiId = com::Guid::FromText("1d3c8a60-5f0e-4c7b-8a52-0b9d1e6f7a31");
  const auto make = [] { return std::make_shared<PlainCodec>(); };
  registry.Register({"CuentaCodec.cCuentaCodec", kCuentaCodecClassId, make});
  registry.Register({"velmarapi.CPRINCIPAL", apiId, make});
  std::string tail = "12";
  CreateCuentaCodec()->CodificarTramo(tail);
  EXPECT_EQ(tail, "12*");
  EXPECT_NE(CreateCuentaCodec(), CreateCuentaCodec());
  EXPECT_EQ(Failure(CreateHostApi), kMemberNotFound);
  registry.Unregister(kCuentaCodecClassId);
  registry.Unregister(apiId);
}

}  // namespace
}  // namespace velmar
