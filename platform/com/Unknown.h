#pragma once

#include <cstdint>

#include "platform/com/Guid.h"
#include "platform/com/HResult.h"

namespace velmar::com {

/// What every object behind a binary interface offers. In memory: one pointer to a table of function pointers
/// in the order below, each taking the object as its first argument, in the platform's C calling convention;
/// so a host in C can call it. The order never changes. No call lets an exception out.
class Unknown {
 public:
  static constexpr Guid kId{0x00000000, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

  /// The object under another interface, with a reference of the caller's own. kENoInterface, and a null
  /// result, if it has no such interface.
  virtual HResult QueryInterface(const Guid& interface, void** result) noexcept = 0;
  /// One reference more; gives the number of references.
  virtual std::uint32_t AddRef() noexcept = 0;
  /// One less; the object ends with the last.
  virtual std::uint32_t Release() noexcept = 0;

 protected:
  ~Unknown() = default;
};

}  // namespace velmar::com
