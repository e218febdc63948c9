// A host that knows the wizard by the four entry points of its library: it registers the class for this user,
// makes an object through DllGetClassObject, runs an export with it, and takes the registration back.

#include <dlfcn.h>

#include <cstdio>
#include <stdexcept>
#include <string>

#include "MinimalHost.h"
#include "host/Principal.h"
#include "platform/com/ClassFactory.h"
#include "platform/com/ObjectUnknown.h"

namespace {

using velmar::com::Guid;
using velmar::com::HResult;

/// The library's entry points. It stays loaded: this program holds objects that it made.
class Component {
 public:
  explicit Component(const std::string& library) : library_(dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (library_ == nullptr) throw std::runtime_error(dlerror());
  }

  HResult RegisterServer() const { return Entry<HResult (*)()>("DllRegisterServer")(); }
  HResult UnregisterServer() const { return Entry<HResult (*)()>("DllUnregisterServer")(); }
  HResult CanUnloadNow() const { return Entry<HResult (*)()>("DllCanUnloadNow")(); }

  /// The class factory makes the object, and the object gives itself as a C++ object.
  std::shared_ptr<velmar::Principal> Create() const {
    using GetClassObject = HResult (*)(const Guid*, const Guid*, void**);
    void* result = nullptr;
    Require(Entry<GetClassObject>("DllGetClassObject")(&velmar::kPrincipalClass,
                                                       &velmar::com::ClassFactory::kId, &result));
    auto* factory = static_cast<velmar::com::ClassFactory*>(result);
    const HResult made = factory->CreateInstance(nullptr, velmar::com::Unknown::kId, &result);
    factory->Release();
    Require(made);
    auto* unknown = static_cast<velmar::com::Unknown*>(result);
    const HResult found = unknown->QueryInterface(velmar::com::ObjectUnknown::kObjectId, &result);
    unknown->Release();
    Require(found);
    const std::shared_ptr<velmar::com::Object> object(static_cast<velmar::com::Object*>(result),
                                                      [unknown](auto*) { unknown->Release(); });
    return velmar::com::Query<velmar::Principal>(object);
  }

 private:
  template <typename Function>
  Function Entry(const char* name) const {
    void* entry = dlsym(library_, name);
    if (entry == nullptr) throw std::runtime_error(dlerror());
    return reinterpret_cast<Function>(entry);
  }

  static void Require(HResult result) {
    if (result < 0) throw std::runtime_error("la clase no se puede crear: " + std::to_string(result));
  }

  void* library_;
};

class Site final : public velmar::ComponentSite {
 public:
  explicit Site(velmar::toolkit::Toolkit& toolkit) : toolkit_(toolkit) {}
  velmar::toolkit::Toolkit& Surroundings() override { return toolkit_; }

 private:
  velmar::toolkit::Toolkit& toolkit_;
};

bool Export(const Component& component, const std::string& folder) {
  velmar::toolkit::ScriptedToolkit user;
  minimal::Play(user, folder + "/Colaboradores.xls");
  minimal::RegisterClasses();
  Site site(user);
  const auto principal = component.Create();
  principal->SetSite(&site);
  principal->PasarDatos(std::make_shared<minimal::Application>(folder));
  principal->SetSite(nullptr);
  return minimal::Tell(user);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argc > 3) {
    std::fprintf(stderr, "Uso: %s CARPETA [BIBLIOTECA]\n", argv[0]);
    return 2;
  }
  try {
    const Component component(argc == 3 ? argv[2] : "libVelmarExportacion.so.0");
    if (component.RegisterServer() < 0) throw std::runtime_error("la clase no se puede registrar");
    const bool complete = Export(component, std::filesystem::absolute(argv[1]).string());
    // Nothing of the library is in use any more.
    const bool idle = component.CanUnloadNow() == velmar::com::kSOk;
    if (component.UnregisterServer() < 0) throw std::runtime_error("el registro no se puede retirar");
    return complete && idle ? 0 : 1;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "Error: %s\n", failure.what());
    return 1;
  }
}
