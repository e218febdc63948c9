#include "platform/com/ClassRegistry.h"
#include "platform/com/Server.h"

namespace velmar::com {

extern "C" {

__attribute__((visibility("default"))) HResult DllGetClassObject(const Guid* classId, const Guid* interface,
                                                                 void** result) {
  ClassRegistry classes;
  classes.Register({"Prueba.cSaludo", Guid{77, 0, 0, {}}, [] { return std::make_shared<Object>(); }});
  return GetClassObject(classes, classId, interface, result);
}

__attribute__((visibility("default"))) HResult DllCanUnloadNow() {
  return CanUnloadNow();
}
}

}  // namespace velmar::com
