#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmar::files {

/// The real spelling of an existing file or folder that was written in any case, with `/` or `\`. The very
/// spelling that was written wins over others. Nothing if there is none; `*` and `?` are plain characters
/// here. Raises kPermissionDenied if a folder on the way cannot be read.
std::optional<std::string> Resolve(std::string_view path);

/// The same for a path that is to be written or deleted: a folder that exists exactly as written is the only
/// one looked into, so that what lies in another is left alone.
std::optional<std::string> ResolveForChange(std::string_view path);

/// The path under which to make a new file: the real spelling of its folder, and the name as written.
/// Raises kPathNotFound if the folder does not exist, kInvalidProcedureCall if the path has no file name.
std::string ResolveForCreation(std::string_view path);

}  // namespace velmar::files
