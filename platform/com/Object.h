#pragma once

#include <memory>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::com {

/// An object that is known by the interfaces it turns out to have. Classes that can be made by name derive
/// from it and from the interfaces that they offer.
class Object {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;
};

/// The object under an interface. Raises kObjectNotSet for no object, kMemberNotFound if it has no such
/// interface.
template <typename Interface>
std::shared_ptr<Interface> Query(const std::shared_ptr<Object>& object) {
  if (!object) throw RuntimeError(kObjectNotSet, "No hay ningún objeto al que llamar.", "Query");
  auto found = std::dynamic_pointer_cast<Interface>(object);
  if (!found)
    throw RuntimeError(kMemberNotFound, "El objeto no ofrece las operaciones que se le piden.", "Query");
  return found;
}

}  // namespace velmar::com
