#include "platform/com/Server.h"

#include <dlfcn.h>

#include <exception>
#include <filesystem>

#include "platform/com/ClassFactory.h"
#include "platform/com/ClassFile.h"
#include "platform/com/ClassRegistry.h"
#include "platform/com/Module.h"
#include "platform/com/ObjectFactory.h"
#include "platform/com/ObjectUnknown.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::com {
namespace {

template <typename Work>
HResult Guarded(Work work) noexcept {
  try {
    work();
    return kSOk;
  } catch (const RuntimeError& error) {
    return error.Number() == kPermissionDenied ? kEAccessDenied : kEFail;
  } catch (const std::bad_alloc&) {
    return kEOutOfMemory;
  } catch (...) {
    return kEFail;
  }
}

[[noreturn]] void CannotCreate(const std::string& library, const std::string& reason) {
  throw RuntimeError(kCannotCreateObject,
                     "No se puede crear un objeto de la biblioteca \"" + library + "\": " + reason +
                         ". Instale de nuevo el programa que la contiene.",
                     "CreateObject");
}

}  // namespace

HResult RegisterServer(const ClassRegistry& registry, const ClassFile& file,
                       const std::string& library) noexcept {
  return Guarded([&] {
    for (const auto& entry : registry.Classes()) file.Publish({entry.progId, entry.classId, library});
  });
}

HResult UnregisterServer(const ClassRegistry& registry, const ClassFile& file) noexcept {
  return Guarded([&] {
    for (const auto& entry : registry.Classes()) file.Withdraw(entry.classId);
  });
}

HResult GetClassObject(const ClassRegistry& registry, const Guid* classId, const Guid* interface,
                       void** result) noexcept {
  if (classId == nullptr || interface == nullptr || result == nullptr) return kEPointer;
  *result = nullptr;
  HResult answer = kEClassNotAvailable;
  const HResult made = Guarded([&] {
    const auto* entry = registry.Find(*classId);
    if (entry == nullptr) return;
    auto* factory = new ObjectFactory(entry->make);  // NOLINT(bugprone-unhandled-exception-at-new): Guarded
    answer = factory->QueryInterface(*interface, result);
    factory->Release();
  });
  return made == kSOk ? answer : made;
}

HResult CanUnloadNow() noexcept {
  return Module::CanUnload() ? kSOk : kSFalse;
}

std::string LibraryOf(const void* address) {
  Dl_info info{};
  if (dladdr(address, &info) == 0 || info.dli_fname == nullptr) {
    throw RuntimeError(kFileNotFound, "No se sabe de qué fichero procede el componente.",
                       "DllRegisterServer");
  }
  return std::filesystem::canonical(info.dli_fname).string();
}

std::shared_ptr<Object> CreateFromLibrary(const std::string& library, const Guid& classId) {
  using GetClassObjectEntry = HResult (*)(const Guid*, const Guid*, void**);
  void* loaded = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (loaded == nullptr) {
    const char* reason = dlerror();
    CannotCreate(library, reason != nullptr ? reason : "no se puede cargar");
  }
  const auto entry = reinterpret_cast<GetClassObjectEntry>(dlsym(loaded, "DllGetClassObject"));
  if (entry == nullptr) CannotCreate(library, "no exporta DllGetClassObject");

  void* result = nullptr;
  if (entry(&classId, &ClassFactory::kId, &result) < 0)
    CannotCreate(library, "no ofrece " + classId.ToText());
  auto* factory = static_cast<ClassFactory*>(result);
  const HResult made = factory->CreateInstance(nullptr, Unknown::kId, &result);
  factory->Release();
  if (made < 0) CannotCreate(library, "el objeto no se ha podido iniciar");

  std::shared_ptr<Unknown> unknown(static_cast<Unknown*>(result), [](Unknown* last) { last->Release(); });
  if (unknown->QueryInterface(ObjectUnknown::kObjectId, &result) < 0)
    CannotCreate(library, "el objeto es de otra clase");
  auto* object = static_cast<Object*>(result);
  unknown->Release();
  return {unknown, object};
}

}  // namespace velmar::com
