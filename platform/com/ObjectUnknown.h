#pragma once

#include <atomic>
#include <memory>

#include "platform/com/Module.h"
#include "platform/com/Object.h"
#include "platform/com/Unknown.h"

namespace velmar::com {

/// An Object behind the binary interface. Under kObjectId it gives the Object itself, which lives at least as
/// long as the references to this. Made with one reference; ends itself with the last.
class ObjectUnknown final : public Unknown {
 public:
  /// The result of QueryInterface is an Object*. Only for callers built with the same compiler.
  static constexpr Guid kObjectId{
      0x5E1B7A52, 0x3C0D, 0x4E88, {0x9A, 0x41, 0x6D, 0x02, 0xB7, 0xF3, 0x1C, 0x90}};

  explicit ObjectUnknown(std::shared_ptr<Object> object);

  HResult QueryInterface(const Guid& interface, void** result) noexcept override;
  std::uint32_t AddRef() noexcept override;
  std::uint32_t Release() noexcept override;

 private:
  ~ObjectUnknown() = default;

  Module::Use use_;
  std::shared_ptr<Object> object_;
  std::atomic<std::uint32_t> references_{1};
};

}  // namespace velmar::com
