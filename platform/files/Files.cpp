#include "platform/files/Files.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/error/ErrorNumber.h"
#include "platform/error/OperationObserver.h"
#include "platform/error/RuntimeError.h"
#include "platform/error/SystemFailure.h"
#include "platform/files/NamePattern.h"
#include "platform/files/WrittenPath.h"

namespace velmar::files {
namespace {

namespace fs = std::filesystem;

bool IsFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

std::vector<std::string> MatchesIn(const fs::path& folder, const std::string& name) {
  std::vector<std::string> found;
  if (!NamePattern::IsPattern(name)) {
    VisitSpellings(folder, name, [&](const fs::path& path) {
      if (IsFile(path)) found.push_back(ToText(path));
      return !found.empty();
    });
    return found;
  }
  const NamePattern pattern(name);
  for (const std::string& candidate : NamesIn(folder)) {
    const fs::path path = folder / FromText(candidate);
    if (pattern.Matches(candidate) && IsFile(path)) found.push_back(ToText(path));
  }
  return found;
}

std::error_code Delete(const fs::path& path) {
  std::error_code error;
  const fs::perms permissions = fs::status(path, error).permissions();
  constexpr fs::perms kAnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  // A file that someone has made read-only is to be kept, although the folder would let it go.
  if (!error && (permissions & kAnyWrite) == fs::perms::none) {
    return std::make_error_code(std::errc::permission_denied);
  }
  fs::remove(path, error);
  return error;
}

void RequireDeleted(const std::string& file) {
  OperationObserver::Announce(Operation::kDeleteFile, file);
  const std::error_code error = Delete(FromText(file));
  if (!error) return;
  throw SystemFailure(error.value(), "No se puede borrar el fichero \"" + file + "\"", "Kill");
}

}  // namespace

std::vector<std::string> Matches(std::string_view path) {
  const WrittenPath written(path);
  std::vector<std::string> found;
  if (written.Name().empty()) return found;
  written.VisitOwnFolder([&](const fs::path& folder) {
    found = MatchesIn(folder, written.Name());
    return !found.empty();
  });
  return found;
}

std::string Dir(std::string_view path, [[maybe_unused]] int attributes) {
  const std::vector<std::string> found = Matches(path);
  return found.empty() ? std::string() : ToText(FromText(found.front()).filename());
}

void Kill(std::string_view path) {
  const std::vector<std::string> found = Matches(path);
  if (found.empty()) {
    throw RuntimeError(kFileNotFound, "No existe el fichero \"" + std::string(path) + "\".", "Kill");
  }
  std::optional<RuntimeError> failure;
  for (const std::string& file : found) {
    try {
      RequireDeleted(file);
    } catch (const RuntimeError& error) {
      if (!failure) failure = error;
    }
  }
  if (failure) throw *failure;
}

}  // namespace velmar::files
