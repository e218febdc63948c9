#pragma once

#include <memory>
#include <string_view>

#include "platform/com/Guid.h"
#include "platform/com/Object.h"

namespace velmar::com {

/// A new object of the class of this name, such as "VelmarApi.cPrincipal": of this process's registry, or
/// else of the library that the user's class file names for it. Raises kCannotCreateObject for an unknown
/// class; what the class's own making raises passes through.
std::shared_ptr<Object> CreateObject(std::string_view progId);

/// The same by class identifier.
std::shared_ptr<Object> CreateObject(const Guid& classId);

}  // namespace velmar::com
