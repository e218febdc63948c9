#pragma once

#include <memory>
#include <string>

#include "platform/com/Guid.h"
#include "platform/com/HResult.h"
#include "platform/com/Object.h"

namespace velmar::com {

class ClassRegistry;
class ClassFile;

// The four entry points of an in-process server, for a library to forward to:
//
//     extern "C" HResult DllRegisterServer();
//     extern "C" HResult DllUnregisterServer();
//     extern "C" HResult DllGetClassObject(const Guid* classId, const Guid* interface, void** result);
//     extern "C" HResult DllCanUnloadNow();

/// Publishes every class of the registry as made by the library at this path.
HResult RegisterServer(const ClassRegistry& registry, const ClassFile& file,
                       const std::string& library) noexcept;
/// Withdraws every class of the registry.
HResult UnregisterServer(const ClassRegistry& registry, const ClassFile& file) noexcept;
/// The class factory of a class, with a reference of the caller's own; kEClassNotAvailable for an unknown
/// class.
HResult GetClassObject(const ClassRegistry& registry, const Guid* classId, const Guid* interface,
                       void** result) noexcept;
/// kSOk if no object or lock keeps the library in memory, else kSFalse.
HResult CanUnloadNow() noexcept;

/// The full path of the library or program that holds this address.
std::string LibraryOf(const void* address);

/// Loads the library, which stays loaded, and makes an object of the class through its DllGetClassObject.
/// Raises kCannotCreateObject, with the reason.
std::shared_ptr<Object> CreateFromLibrary(const std::string& library, const Guid& classId);

}  // namespace velmar::com
