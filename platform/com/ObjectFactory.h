#pragma once

#include <atomic>
#include <functional>
#include <memory>

#include "platform/com/ClassFactory.h"
#include "platform/com/Module.h"
#include "platform/com/Object.h"

namespace velmar::com {

/// A class factory over a function that makes an Object. Made with one reference; ends itself with the last.
class ObjectFactory final : public ClassFactory {
 public:
  using Maker = std::function<std::shared_ptr<Object>()>;

  explicit ObjectFactory(Maker maker);

  HResult QueryInterface(const Guid& interface, void** result) noexcept override;
  std::uint32_t AddRef() noexcept override;
  std::uint32_t Release() noexcept override;
  HResult CreateInstance(Unknown* outer, const Guid& interface, void** result) noexcept override;
  HResult LockServer(std::int32_t lock) noexcept override;

 private:
  ~ObjectFactory() = default;

  Module::Use use_;
  Maker maker_;
  std::atomic<std::uint32_t> references_{1};
};

}  // namespace velmar::com
