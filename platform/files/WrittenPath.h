#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::files {

/// A path as a person or another system wrote it: parts separated by `/` or `\`, in any case, accents
/// composed in any way. It may mean several real paths; the spelling that was written comes first, others in
/// the order of their bytes.
class WrittenPath {
 public:
  explicit WrittenPath(std::string_view path);

  /// What stands behind the last separator; empty if the path ends with one.
  const std::string& Name() const noexcept { return name_; }

  /// Calls `visit` with each existing folder that the part before the name may mean, the best first, until it
  /// gives true. True if it did. The current folder for a path without folders.
  bool VisitFolders(const std::function<bool(const std::filesystem::path&)>& visit) const;
  /// The same, but a folder that exists exactly as written is the only one.
  bool VisitOwnFolder(const std::function<bool(const std::filesystem::path&)>& visit) const;

 private:
  std::filesystem::path root_;
  std::vector<std::string> folders_;
  std::string name_;
};

/// What `folder` holds: names of files and folders alike, in the order of their bytes. Empty if there is no
/// such folder. Raises kPermissionDenied if it cannot be read.
std::vector<std::string> NamesIn(const std::filesystem::path& folder);

/// The names in `folder` that `name` may mean, the same spelling first. `visit` as in VisitFolders.
bool VisitSpellings(const std::filesystem::path& folder, const std::string& name,
                    const std::function<bool(const std::filesystem::path&)>& visit);

/// The path in UTF-8.
std::string ToText(const std::filesystem::path& path);

/// From UTF-8.
std::filesystem::path FromText(std::string_view path);

}  // namespace velmar::files
