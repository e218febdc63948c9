#include "platform/error/Operation.h"

#include <array>
#include <cstddef>

namespace velmar {

std::string_view NameOf(Operation operation) noexcept {
  constexpr std::array<std::string_view, 17> kNames{
      "abrir base de datos", "unir base de datos", "crear base de datos", "sentencia",    "abrir registros",
      "leer registro",       "escribir registro",  "confirmar",           "leer carpeta", "borrar archivo",
      "bloquear archivo",    "abrir archivo",      "crear archivo",       "leer archivo", "escribir archivo",
      "ajustar archivo",     "publicar archivo"};
  return kNames[static_cast<std::size_t>(operation)];
}

}  // namespace velmar
