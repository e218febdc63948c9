#include "platform/excel/NativeFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "platform/error/OperationObserver.h"
#include "platform/excel/WorkbookErrors.h"

namespace velmar::excel {

NativeFile::NativeFile(int descriptor, std::string path, Kind kind, std::string temporaryPath)
    : descriptor_(descriptor),
      path_(std::move(path)),
      kind_(kind),
      temporaryPath_(std::move(temporaryPath)) {}

NativeFile::~NativeFile() {
  if (kind_ == Kind::kTemporary) unlink(temporaryPath_.c_str());
  close(descriptor_);
}

std::uint64_t NativeFile::Size() const {
  struct stat info;
  if (fstat(descriptor_, &info) != 0) throw WorkbookErrors::System(errno, "leer", path_);
  return static_cast<std::uint64_t>(info.st_size);
}

void NativeFile::Resize(std::uint64_t size) {
  OperationObserver::Announce(Operation::kResizeFile, path_);
  if (ftruncate(descriptor_, static_cast<off_t>(size)) != 0)
    throw WorkbookErrors::System(errno, "escribir en", path_);
}

void NativeFile::Lock() {
  OperationObserver::Announce(Operation::kLockFile, path_);
  if (flock(descriptor_, LOCK_EX | LOCK_NB) == 0) return;
  if (errno == EWOULDBLOCK) throw WorkbookErrors::InUse(path_);
  // Some network drives know no locks; the comparison before each write must do there.
  if (errno != ENOLCK && errno != EOPNOTSUPP && errno != EINVAL && errno != ENOSYS)
    throw WorkbookErrors::System(errno, "escribir en", path_);
}

void NativeFile::Publish() {
  OperationObserver::Announce(Operation::kPublishFile, path_);
  int result = 0;
  if (kind_ == Kind::kNameless) {
    const std::string self = "/proc/self/fd/" + std::to_string(descriptor_);
    result = linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path_.c_str(), AT_SYMLINK_FOLLOW);
  } else {
    result = renameat2(AT_FDCWD, temporaryPath_.c_str(), AT_FDCWD, path_.c_str(), RENAME_NOREPLACE);
    if (result != 0 && (errno == EINVAL || errno == ENOSYS)) {
      errno = EEXIST;
      if (access(path_.c_str(), F_OK) != 0) result = rename(temporaryPath_.c_str(), path_.c_str());
    }
  }
  if (result != 0) throw WorkbookErrors::System(errno, "crear", path_);
  kind_ = Kind::kNamed;
}

void NativeFile::DoRead(std::uint64_t offset, std::span<std::uint8_t> bytes) {
  OperationObserver::Announce(Operation::kReadFile, path_);
  while (!bytes.empty()) {
    const ssize_t count = pread(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw WorkbookErrors::System(errno, "leer", path_);
    if (count == 0) throw WorkbookErrors::Truncated(path_);
    bytes = bytes.subspan(static_cast<std::size_t>(count));
    offset += static_cast<std::uint64_t>(count);
  }
}

void NativeFile::DoWrite(std::uint64_t offset, std::span<const std::uint8_t> bytes) {
  OperationObserver::Announce(Operation::kWriteFile, path_);
  while (!bytes.empty()) {
    const ssize_t count = pwrite(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) throw WorkbookErrors::System(count < 0 ? errno : ENOSPC, "escribir en", path_);
    bytes = bytes.subspan(static_cast<std::size_t>(count));
    offset += static_cast<std::uint64_t>(count);
  }
}

}  // namespace velmar::excel
