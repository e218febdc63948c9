#pragma once

#include <string>
#include <string_view>

#include "host/interfaces/cCuentaCodec.h"

namespace velmar::sample {

/// The form in which this office keeps the tail of an account number: each digit is replaced by another one
/// that depends on its place. Only digits change and the length stays, so the stored form survives a change
/// of case, and the beginning of a tail is stored as the beginning of the stored tail, so a search for it
/// works. It keeps account numbers from being read in passing; it is no protection against someone who means
/// to.
class AccountCodec final : public cCuentaCodec {
 public:
  static std::string Encode(std::string_view tail);
  /// The inverse of Encode for every text.
  static std::string Decode(std::string_view stored);

  void CodificarTramo(std::string& tramo) override { tramo = Encode(tramo); }
  void DecodificarTramo(std::string& tramo) override { tramo = Decode(tramo); }
};

}  // namespace velmar::sample
