#include "sample/command/TargetWorkbook.h"

#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "sample/SampleFiles.h"
#include "sample/command/CommandError.h"

namespace velmar::sample {
namespace {

/// True for a file that begins as the compound files in which Excel 8.0 workbooks lie (MS-CFB).
bool IsCompoundFile(const std::string& file) {
  constexpr std::string_view kSignature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
  std::string start(kSignature.size(), '\0');
  std::ifstream(file, std::ios::binary).read(start.data(), static_cast<std::streamsize>(start.size()));
  return start == kSignature;
}

[[noreturn]] void RefuseTaken(const std::string& file) {
  throw CommandError(kTargetTaken, "Ya existe el archivo '" + file +
                                       "'. Elija otro nombre o permita sustituirlo con --sobrescribir.");
}

void RequireFree(const std::string& file, bool overwrite) {
  std::error_code failure;
  if (std::filesystem::symlink_status(file, failure).type() == std::filesystem::file_type::not_found) return;
  // To look into a pipe would be to wait for the other end.
  if (!std::filesystem::is_regular_file(file, failure) || !IsCompoundFile(file)) {
    throw CommandError(kTargetTaken, "El archivo '" + file +
                                         "' no es un libro de Excel y no se sustituye. Elija otro nombre.");
  }
  if (!overwrite) RefuseTaken(file);
}

}  // namespace

TargetWorkbook::TargetWorkbook(std::string file, bool overwrite)
    : file_((RequireFree(file, overwrite), std::move(file))),
      overwrite_(overwrite),
      folder_(std::filesystem::absolute(file_).parent_path().string()),
      unfinished_(PathIn(folder_.Path(), "Exportacion.xls")) {}

void TargetWorkbook::Keep() {
  std::error_code failure;
  if (overwrite_) {
    RequireFree(file_, overwrite_);
    std::filesystem::rename(unfinished_, file_, failure);
  } else {
    failure = MoveWithoutReplacing(unfinished_, file_);
  }
  if (failure == std::errc::file_exists) RefuseTaken(file_);
  if (failure) {
    throw RuntimeError(kPermissionDenied,
                       "No se puede escribir el archivo '" + file_ + "': " + failure.message() +
                           ". Compruebe la carpeta y los permisos.",
                       "TargetWorkbook");
  }
}

}  // namespace velmar::sample
