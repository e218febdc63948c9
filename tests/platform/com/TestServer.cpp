#include <cstdlib>

#include "platform/com/ClassFile.h"
#include "platform/com/ClassRegistry.h"
#include "platform/com/Greeter.h"
#include "platform/com/Server.h"

namespace velmar::com {
namespace {

class SpanishGreeter : public Object, public Greeter {
 public:
  std::string Greet(const std::string& whom) override { return "Hola, " + whom; }
};

const ClassRegistry& Classes() {
  static const ClassRegistry registry = [] {
    ClassRegistry classes;
    classes.Register({"Prueba.cSaludo", kGreeterClass, [] { return std::make_shared<SpanishGreeter>(); }});
    return classes;
  }();
  return registry;
}

}  // namespace
}  // namespace velmar::com

extern "C" {

__attribute__((visibility("default"))) velmar::com::HResult DllRegisterServer() {
  return RegisterServer(velmar::com::Classes(), velmar::com::ClassFile::OfUser(),
                        velmar::com::LibraryOf(reinterpret_cast<const void*>(&velmar::com::Classes)));
}

__attribute__((visibility("default"))) velmar::com::HResult DllUnregisterServer() {
  return UnregisterServer(velmar::com::Classes(), velmar::com::ClassFile::OfUser());
}

__attribute__((visibility("default"))) velmar::com::HResult DllGetClassObject(
    const velmar::com::Guid* classId, const velmar::com::Guid* interface, void** result) {
  return GetClassObject(velmar::com::Classes(), classId, interface, result);
}

__attribute__((visibility("default"))) velmar::com::HResult DllCanUnloadNow() {
  return velmar::com::CanUnloadNow();
}
}
