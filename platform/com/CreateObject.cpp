#include "platform/com/CreateObject.h"

#include <string>

#include "platform/com/ClassFile.h"
#include "platform/com/ClassRegistry.h"
#include "platform/com/Server.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::com {
namespace {

template <typename Key>
std::shared_ptr<Object> Create(const Key& key, const std::string& shown) {
  if (const auto* own = ClassRegistry::Instance().Find(key)) return own->make();
  if (const auto published = ClassFile::OfUser().Find(key)) {
    return CreateFromLibrary(published->server, published->classId);
  }
  throw RuntimeError(kCannotCreateObject,
                     "No se puede crear un objeto de la clase " + shown +
                         ": no está registrada. Registre o instale el programa que la contiene.",
                     "CreateObject");
}

}  // namespace

std::shared_ptr<Object> CreateObject(std::string_view progId) {
  return Create(progId, "\"" + std::string(progId) + "\"");
}

std::shared_ptr<Object> CreateObject(const Guid& classId) {
  return Create(classId, classId.ToText());
}

}  // namespace velmar::com
