#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar::files {

// A path may hold `*` and `?` in its last part. Its parts match regardless of case and separate with `/` or
// `\`. Only files are matched, never folders. A folder that exists exactly as written is the only one looked
// into: on a file system that tells capitals apart, another spelling is another folder, whose files are not
// to be deleted.

/// The real paths of all files that the path means, in the order of their names: with a pattern every file of
/// the folder that matches, otherwise at most one, the one spelt as written if there is one.
/// Raises kPermissionDenied if a folder cannot be read.
std::vector<std::string> Matches(std::string_view path);

/// The name, without folder, of the first file that the path means; empty if there is none. `attributes`
/// names further kinds of files to include (32: those to archive); every file is included here in any case.
std::string Dir(std::string_view path, int attributes = 0);

/// Deletes every file that the path means: exactly those that Dir would find. Goes on behind a file that it
/// cannot delete and raises the failure at the end.
/// Raises kFileNotFound if there is none, kPermissionDenied for a file that is read-only or may not be
/// deleted.
void Kill(std::string_view path);

}  // namespace velmar::files
