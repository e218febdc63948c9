#include "platform/files/WrittenPath.h"

#include <algorithm>
#include <cstddef>
#include <system_error>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/OperationObserver.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Collation.h"

namespace velmar::files {
namespace {

using Visit = std::function<bool(const std::filesystem::path&)>;

bool Exists(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

std::vector<std::string> NamesIn(const std::filesystem::path& folder, std::error_code& error) {
  std::vector<std::string> names;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    names.push_back(ToText(entry->path().filename()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::filesystem::path Readable(const std::filesystem::path& folder) {
  return folder.empty() ? std::filesystem::path(".") : folder;
}

bool VisitBelow(const std::filesystem::path& folder, const std::vector<std::string>& parts, std::size_t next,
                const Visit& visit) {
  if (next == parts.size()) return visit(folder);
  return VisitSpellings(folder, parts[next], [&](const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error) && VisitBelow(path, parts, next + 1, visit);
  });
}

}  // namespace

WrittenPath::WrittenPath(std::string_view path) {
  constexpr std::string_view kSeparators = "/\\";
  if (!path.empty() && kSeparators.find(path.front()) != std::string_view::npos) root_ = "/";
  while (true) {
    const std::size_t end = path.find_first_of(kSeparators);
    if (end == std::string_view::npos) break;
    if (end > 0) folders_.emplace_back(path.substr(0, end));
    path.remove_prefix(end + 1);
  }
  name_ = path;
}

bool WrittenPath::VisitFolders(const Visit& visit) const {
  return VisitBelow(root_, folders_, 0, visit);
}

bool WrittenPath::VisitOwnFolder(const Visit& visit) const {
  std::filesystem::path written = root_;
  for (const std::string& folder : folders_) written /= FromText(folder);
  std::error_code error;
  if (std::filesystem::is_directory(Readable(written), error)) return visit(written);
  return VisitFolders(visit);
}

std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::error_code error;
  const std::filesystem::path real = Readable(folder);
  OperationObserver::Announce(Operation::kListFolder, ToText(real));
  std::vector<std::string> names = NamesIn(real, error);
  if (error == std::errc::permission_denied) {
    throw RuntimeError(
        kPermissionDenied,
        "No hay permiso para leer la carpeta \"" + ToText(real) + "\". Pida acceso a ella o elija otra.",
        "files");
  }
  return names;
}

bool VisitSpellings(const std::filesystem::path& folder, const std::string& name, const Visit& visit) {
  const std::filesystem::path written = folder / FromText(name);
  const bool exists = Exists(written);
  if (exists && visit(written)) return true;
  // A folder that may be entered but not listed, as those above a home often are, keeps nobody from what is
  // spelt as it stands there.
  std::error_code ignored;
  for (const std::string& other : exists ? NamesIn(Readable(folder), ignored) : NamesIn(folder)) {
    if (other != name && text::EqualText(other, name) && visit(folder / FromText(other))) return true;
  }
  return false;
}

std::string ToText(const std::filesystem::path& path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

std::filesystem::path FromText(std::string_view path) {
  return std::u8string(path.begin(), path.end());
}

}  // namespace velmar::files
