#include "platform/excel/NativeFileLayer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "platform/error/OperationObserver.h"
#include "platform/excel/NativeFile.h"
#include "platform/excel/WorkbookErrors.h"

namespace velmar::excel {

namespace {

constexpr mode_t kMode = 0666;

std::unique_ptr<File> Open(const std::string& path, int flags, const char* doing) {
  OperationObserver::Announce(Operation::kOpenFile, path);
  const int descriptor = open(path.c_str(), flags | O_CLOEXEC);
  if (descriptor < 0) {
    if (errno == ENOENT) throw WorkbookErrors::NoFile(path);
    throw WorkbookErrors::System(errno, doing, path);
  }
  auto file = std::make_unique<NativeFile>(descriptor, path);
  struct stat info;
  if (fstat(descriptor, &info) == 0 && S_ISDIR(info.st_mode))
    throw WorkbookErrors::System(EISDIR, doing, path);
  return file;
}

}  // namespace

FileLayer& FileLayer::Native() {
  static NativeFileLayer layer;
  return layer;
}

bool NativeFileLayer::Exists(const std::string& path) {
  struct stat info;
  return lstat(path.c_str(), &info) == 0;
}

std::unique_ptr<File> NativeFileLayer::OpenForReading(const std::string& path) {
  return Open(path, O_RDONLY, "leer");
}

std::unique_ptr<File> NativeFileLayer::OpenForWriting(const std::string& path) {
  return Open(path, O_RDWR, "escribir en");
}

std::unique_ptr<File> NativeFileLayer::Create(const std::string& path) {
  OperationObserver::Announce(Operation::kCreateFile, path);
  const std::filesystem::path target(path);
  const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
  int descriptor = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kMode);
  if (descriptor >= 0) return std::make_unique<NativeFile>(descriptor, path, NativeFile::Kind::kNameless);
  // EISDIR and ENOENT come from systems that do not know the flag at all.
  if (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL && errno != ENOENT)
    throw WorkbookErrors::System(errno, "crear", path);
  const std::string temporary =
      (folder / ("." + target.filename().string() + "." + std::to_string(getpid()) + ".tmp")).string();
  descriptor = open(temporary.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kMode);
  if (descriptor < 0) throw WorkbookErrors::System(errno, "crear", path);
  return std::make_unique<NativeFile>(descriptor, path, NativeFile::Kind::kTemporary, temporary);
}

}  // namespace velmar::excel
