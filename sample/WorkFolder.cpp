#include "sample/WorkFolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "sample/SampleFiles.h"

namespace velmar::sample {

WorkFolder::WorkFolder(const std::string& parent) : path_(PathIn(parent, "velmar-XXXXXX")) {
  if (mkdtemp(path_.data()) == nullptr) {
    throw RuntimeError(kPathNotFound,
                       "No se puede crear una carpeta de trabajo en '" + parent +
                           "'. Compruebe que la carpeta existe y que puede escribir en ella.",
                       "WorkFolder");
  }
}

WorkFolder::~WorkFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace velmar::sample
