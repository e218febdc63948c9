#include "platform/com/ObjectFactory.h"

#include <exception>
#include <new>
#include <utility>

#include "platform/com/ObjectUnknown.h"

namespace velmar::com {

ObjectFactory::ObjectFactory(Maker maker) : maker_(std::move(maker)) {}

HResult ObjectFactory::QueryInterface(const Guid& interface, void** result) noexcept {
  if (result == nullptr) return kEPointer;
  if (interface != Unknown::kId && interface != ClassFactory::kId) {
    *result = nullptr;
    return kENoInterface;
  }
  *result = static_cast<ClassFactory*>(this);
  AddRef();
  return kSOk;
}

std::uint32_t ObjectFactory::AddRef() noexcept {
  return ++references_;
}

std::uint32_t ObjectFactory::Release() noexcept {
  const std::uint32_t left = --references_;
  if (left == 0) delete this;
  return left;
}

HResult ObjectFactory::CreateInstance(Unknown* outer, const Guid& interface, void** result) noexcept {
  if (result == nullptr) return kEPointer;
  *result = nullptr;
  if (outer != nullptr) return kENoAggregation;
  try {
    std::shared_ptr<Object> object = maker_();
    if (!object) return kEFail;
    auto* unknown = new ObjectUnknown(std::move(object));
    const HResult answer = unknown->QueryInterface(interface, result);
    unknown->Release();
    return answer;
  } catch (const std::bad_alloc&) {
    return kEOutOfMemory;
  } catch (...) {
    return kEFail;
  }
}

HResult ObjectFactory::LockServer(std::int32_t lock) noexcept {
  if (lock != 0) {
    Module::Enter();
  } else {
    Module::Leave();
  }
  return kSOk;
}

}  // namespace velmar::com
