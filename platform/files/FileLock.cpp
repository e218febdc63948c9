#include "platform/files/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/OperationObserver.h"
#include "platform/error/RuntimeError.h"
#include "platform/error/SystemFailure.h"

namespace velmar::files {
namespace {

constexpr int kNone = -1;
constexpr int kMostTries = 100;

[[noreturn]] void Raise(int failure, const std::string& path) {
  throw SystemFailure(failure, "No se puede crear el archivo \"" + path + "\"", "files");
}

int Open(const std::string& path) {
  constexpr mode_t kMode = 0666;
  int descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kMode);
  const int failure = errno;
  // Another user's file may be there to be read only; a lock needs no more.
  if (descriptor < 0 && failure == EACCES) descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) Raise(failure, path);
  return descriptor;
}

/// Between opening and locking, the one who held the file may have deleted it.
bool StillThere(int descriptor, const std::string& path) {
  struct stat held {};
  struct stat named {};
  return ::fstat(descriptor, &held) == 0 && ::stat(path.c_str(), &named) == 0 &&
         held.st_dev == named.st_dev && held.st_ino == named.st_ino;
}

/// Locks of single bytes, as other office programs set them.
bool HasRecordLock(int descriptor) {
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  return ::fcntl(descriptor, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

}  // namespace

std::optional<FileLock> FileLock::TryTake(const std::string& path) {
  OperationObserver::Announce(Operation::kLockFile, path);
  // On some drives of the network a file does not bear the same number twice.
  for (int tries = 0; tries < kMostTries; ++tries) {
    FileLock lock(Open(path), path);
    if (::flock(lock.descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      ::close(std::exchange(lock.descriptor_, kNone));
      return std::nullopt;
    }
    if (StillThere(lock.descriptor_, path)) return lock;
    ::close(std::exchange(lock.descriptor_, kNone));
  }
  throw RuntimeError(kDeviceIoError,
                     "No se puede reservar el archivo \"" + path +
                         "\": en ese disco cambia cada vez que se abre. Elija una carpeta de otro disco.",
                     "files");
}

bool FileLock::IsHeld(const std::string& path) {
  // Without waiting for the other end, should it be a pipe.
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return false;
  const bool held =
      (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) || HasRecordLock(descriptor);
  ::close(descriptor);
  return held;
}

FileLock::FileLock(int descriptor, std::string path) noexcept
    : descriptor_(descriptor), path_(std::move(path)) {}

FileLock::FileLock(FileLock&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, kNone)), path_(std::move(other.path_)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
  if (this != &other) {
    Release();
    descriptor_ = std::exchange(other.descriptor_, kNone);
    path_ = std::move(other.path_);
  }
  return *this;
}

FileLock::~FileLock() {
  Release();
}

void FileLock::Release() noexcept {
  if (descriptor_ == kNone) return;
  // Deleted while still held: whoever waits for it looks whether it is still there. If somebody has deleted
  // it before, another process may hold one of the same name.
  if (StillThere(descriptor_, path_)) ::unlink(path_.c_str());
  ::close(std::exchange(descriptor_, kNone));
}

}  // namespace velmar::files
