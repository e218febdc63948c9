#pragma once

#include <string>
#include <string_view>

namespace velmar::files {

/// A file name as someone wrote it, in which `*` stands for any characters and `?` for any one. Letters match
/// regardless of case and of the way in which accents are composed. `*.*` means every name. As on the command
/// line, a name that begins with a point is matched only by a pattern that begins with one.
class NamePattern {
 public:
  explicit NamePattern(std::string_view pattern);

  /// True if the text holds `*` or `?`.
  static bool IsPattern(std::string_view name) noexcept;

  bool Matches(std::string_view name) const;

 private:
  std::u32string pattern_;
};

}  // namespace velmar::files
