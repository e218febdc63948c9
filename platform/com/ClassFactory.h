#pragma once

#include <cstdint>

#include "platform/com/Unknown.h"

namespace velmar::com {

/// Makes the objects of one class. The table goes on behind that of Unknown.
class ClassFactory : public Unknown {
 public:
  static constexpr Guid kId{0x00000001, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

  /// A new object under an interface. `outer` must be null.
  virtual HResult CreateInstance(Unknown* outer, const Guid& interface, void** result) noexcept = 0;
  /// Keeps the server from being unloaded while no object lives; 0 takes one lock away.
  virtual HResult LockServer(std::int32_t lock) noexcept = 0;

 protected:
  ~ClassFactory() = default;
};

}  // namespace velmar::com
