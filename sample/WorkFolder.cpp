#include "sample/WorkFolder.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "sample/SampleFiles.h"

namespace velmar::sample {
namespace {

constexpr std::string_view kPrefix = ".velmar-trabajo-";
constexpr std::string_view kPattern = ".velmar-trabajo-XXXXXX";

/// Only a folder as this class makes them: by its name, its owner and its permissions.
bool IsWorkFolder(const std::filesystem::path& path) {
  const std::string name = path.filename().string();
  struct stat status {};
  return name.size() == kPattern.size() && name.starts_with(kPrefix) && lstat(path.c_str(), &status) == 0 &&
         S_ISDIR(status.st_mode) && status.st_uid == geteuid() && (status.st_mode & 07777) == S_IRWXU;
}

int OpenFolder(const std::string& path) {
  return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

/// What killed processes have left; what cannot be removed stays for the next time.
void RemoveStale(const std::string& parent) {
  std::error_code failure;
  for (const auto& entry : std::filesystem::directory_iterator(parent, failure)) {
    if (!IsWorkFolder(entry.path())) continue;
    const int folder = OpenFolder(entry.path().string());
    if (folder < 0) continue;
    if (flock(folder, LOCK_EX | LOCK_NB) == 0) {
      std::error_code ignored;
      std::filesystem::remove_all(entry.path(), ignored);
    }
    close(folder);
  }
}

[[noreturn]] void Refuse(const std::string& parent) {
  throw RuntimeError(kPathNotFound,
                     "No se puede crear una carpeta de trabajo en '" + parent +
                         "'. Compruebe que la carpeta existe y que puede escribir en ella.",
                     "WorkFolder");
}

}  // namespace

WorkFolder::WorkFolder(const std::string& parent) {
  RemoveStale(parent);
  constexpr int kTries = 10;
  for (int i = 0; i < kTries; ++i) {
    if (Make(parent)) return;
  }
  Refuse(parent);
}

bool WorkFolder::Make(const std::string& parent) {
  path_ = PathIn(parent, kPattern);
  if (mkdtemp(path_.data()) == nullptr) Refuse(parent);
  lock_ = OpenFolder(path_);
  if (lock_ < 0) return false;
  // Where the file system has no such locks, nobody finds the folder stale either.
  while (flock(lock_, LOCK_EX) != 0 && errno == EINTR) {
  }
  struct stat held {};
  struct stat named {};
  const bool stands = fstat(lock_, &held) == 0 && stat(path_.c_str(), &named) == 0 &&
                      held.st_ino == named.st_ino && held.st_dev == named.st_dev;
  if (!stands) close(lock_);
  return stands;
}

WorkFolder::~WorkFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
  close(lock_);
}

}  // namespace velmar::sample
