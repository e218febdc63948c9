#include "export/RunContext.h"

#include <ctime>

#include "platform/error/RuntimeError.h"

namespace velmar::exporting {

int CurrentYear() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  if (localtime_r(&now, &local) == nullptr) {
    throw RuntimeError(kInternalError, "No se puede leer la fecha del equipo.", "VelmarExportacion");
  }
  return local.tm_year + 1900;
}

}  // namespace velmar::exporting
