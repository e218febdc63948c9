#include "platform/error/SystemFailure.h"

#include <cerrno>
#include <system_error>

#include "platform/error/ErrorNumber.h"

namespace velmar {
namespace {

struct Meaning {
  long number;
  std::string text;
};

Meaning MeaningOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return {kPathNotFound, "la carpeta no existe. Compruebe la ruta o elija otra carpeta."};
    case EEXIST:
      return {kFileAlreadyExists, "ya hay un archivo con ese nombre. Elija otro nombre."};
    case EISDIR:
      return {kPermissionDenied, "ya hay una carpeta con ese nombre. Elija otro nombre."};
    case ENAMETOOLONG:
      return {kPathNotFound, "el nombre es demasiado largo. Elija otro más corto."};
    case EACCES:
    case EPERM:
    case EROFS:
      return {kPermissionDenied,
              "el archivo o su carpeta son de sólo lectura, o no tiene permiso. Pida permiso de escritura o "
              "elija otra carpeta."};
    case EBUSY:
    case ETXTBSY:
      return {kPermissionDenied, "otro programa lo está usando. Espere a que termine y vuelva a intentarlo."};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return {kDiskFull, "no queda espacio en el disco. Libere espacio y vuelva a intentarlo."};
    case EMFILE:
    case ENFILE:
      return {kDeviceIoError,
              "hay demasiados archivos abiertos. Cierre otros programas y vuelva a intentarlo."};
    default:
      return {kDeviceIoError, "el disco ha dado un error (" + std::generic_category().message(error) +
                                  "). Compruebe el disco o la red y vuelva a intentarlo."};
  }
}

}  // namespace

RuntimeError SystemFailure(int error, const std::string& what, const std::string& source) {
  const Meaning meaning = MeaningOf(error);
  return {meaning.number, what + ": " + meaning.text, source};
}

}  // namespace velmar
