#include "sample/window/OfficeFiles.h"

#include <filesystem>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "sample/SampleFiles.h"

namespace velmar::sample {

bool HasOffice(const std::string& folder) {
  const bool main = std::filesystem::exists(PathIn(folder, kMainFile));
  const bool reports = std::filesystem::exists(PathIn(folder, kReportsFile));
  if (main == reports) return main;
  throw RuntimeError(kFileNotFound,
                     "En la carpeta '" + folder + "' falta la base de datos '" +
                         std::string(main ? kReportsFile : kMainFile) + "', y está '" +
                         std::string(main ? kMainFile : kReportsFile) +
                         "'. Recupere la que falta de una copia de seguridad, o indique otra carpeta.",
                     "OfficeFiles");
}

}  // namespace velmar::sample
