#pragma once

#include <string>

#include "platform/com/Object.h"

namespace velmar {

/// The host's codec for account numbers: the tail of an account, the characters behind the tenth, is stored
/// in a form of its own. An object is held for the length of one routine.
class cCuentaCodec : public com::Object {
 public:
  /// Replaces the plain form of a tail by the form in which it is stored.
  virtual void CodificarTramo(std::string& tramo) = 0;
  /// Replaces the stored form of a tail by the plain one. The inverse of CodificarTramo.
  virtual void DecodificarTramo(std::string& tramo) = 0;
};

}  // namespace velmar
