#pragma once

#include <string>

#include "host/interfaces/cCuentaCodec.h"
#include "sample/AccountCodec.h"

namespace velmar::sample {

/// The sample application's codec class over its way to store account tails.
class SampleAccountCodec final : public cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override { tramo = AccountCodec::Encode(tramo); }
  void DecodificarTramo(std::string& tramo) override { tramo = AccountCodec::Decode(tramo); }
};

}  // namespace velmar::sample
