#include "host/Principal.h"
#include "host/cPrincipal.h"
#include "platform/com/ClassFile.h"
#include "platform/com/ClassRegistry.h"
#include "platform/com/Server.h"

using velmar::com::ClassFile;
using velmar::com::ClassRegistry;
using velmar::com::Guid;
using velmar::com::HResult;

namespace {

/// The classes that this library publishes.
const ClassRegistry& Classes() {
  static const ClassRegistry classes = [] {
    ClassRegistry registry;
    registry.Register({velmar::kPrincipalName, velmar::kPrincipalClass,
                       [] { return std::make_shared<velmar::cPrincipal>(); }});
    return registry;
  }();
  return classes;
}

/// No exception leaves the library through its entry points.
template <typename Work>
HResult Forward(Work work) noexcept {
  try {
    return work();
  } catch (...) {
    return velmar::com::kEFail;
  }
}

}  // namespace

extern "C" {

HResult DllRegisterServer() {
  return Forward([] {
    const std::string library = velmar::com::LibraryOf(reinterpret_cast<const void*>(&DllRegisterServer));
    return velmar::com::RegisterServer(Classes(), ClassFile::OfUser(), library);
  });
}

HResult DllUnregisterServer() {
  return Forward([] { return velmar::com::UnregisterServer(Classes(), ClassFile::OfUser()); });
}

HResult DllGetClassObject(const Guid* classId, const Guid* interface, void** result) {
  return Forward([&] { return velmar::com::GetClassObject(Classes(), classId, interface, result); });
}

HResult DllCanUnloadNow() {
  return velmar::com::CanUnloadNow();
}

}  // extern "C"
