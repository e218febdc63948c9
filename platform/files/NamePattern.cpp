#include "platform/files/NamePattern.h"

#include <cstddef>

#include "platform/text/Case.h"
#include "platform/text/CodePoints.h"

namespace velmar::files {
namespace {

std::u32string Folded(std::string_view name) {
  const std::string canonical = text::FoldCanonical(name);
  std::u32string folded;
  for (std::size_t offset = 0; offset < canonical.size();) {
    folded += text::NextCodePoint(canonical, offset);
  }
  return folded;
}

}  // namespace

NamePattern::NamePattern(std::string_view pattern) : pattern_(Folded(pattern == "*.*" ? "*" : pattern)) {}

bool NamePattern::IsPattern(std::string_view name) noexcept {
  return name.find_first_of("*?") != std::string_view::npos;
}

bool NamePattern::Matches(std::string_view name) const {
  const std::u32string sought = Folded(name);
  if (!sought.empty() && sought.front() == U'.' && (pattern_.empty() || pattern_.front() != U'.'))
    return false;
  std::size_t inPattern = 0;
  std::size_t inName = 0;
  std::size_t star = std::u32string::npos;
  std::size_t starTakes = 0;
  while (inName < sought.size()) {
    if (inPattern < pattern_.size() && pattern_[inPattern] == U'*') {
      star = inPattern++;
      starTakes = inName;
    } else if (inPattern < pattern_.size() &&
               (pattern_[inPattern] == U'?' || pattern_[inPattern] == sought[inName])) {
      ++inPattern;
      ++inName;
    } else if (star != std::u32string::npos) {
      inPattern = star + 1;
      inName = ++starTakes;
    } else {
      return false;
    }
  }
  return pattern_.find_first_not_of(U'*', inPattern) == std::u32string::npos;
}

}  // namespace velmar::files
