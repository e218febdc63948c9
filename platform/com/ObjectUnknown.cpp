#include "platform/com/ObjectUnknown.h"

#include <utility>

namespace velmar::com {

ObjectUnknown::ObjectUnknown(std::shared_ptr<Object> object) : object_(std::move(object)) {}

HResult ObjectUnknown::QueryInterface(const Guid& interface, void** result) noexcept {
  if (result == nullptr) return kEPointer;
  if (interface == Unknown::kId) {
    *result = static_cast<Unknown*>(this);
  } else if (interface == kObjectId) {
    *result = object_.get();
  } else {
    *result = nullptr;
    return kENoInterface;
  }
  AddRef();
  return kSOk;
}

std::uint32_t ObjectUnknown::AddRef() noexcept {
  return ++references_;
}

std::uint32_t ObjectUnknown::Release() noexcept {
  const std::uint32_t left = --references_;
  if (left == 0) delete this;
  return left;
}

}  // namespace velmar::com
