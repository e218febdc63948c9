#include "platform/jet/NameMap.h"

#include "platform/text/Case.h"

namespace velmar::jet {

void NameMap::Add(std::string_view storedName) {
  stored_.emplace(storedName);
  byFoldedName_.try_emplace(text::FoldCase(storedName), storedName);
}

std::string NameMap::Spelling(std::string_view name) const {
  std::string given(name);
  if (stored_.contains(given)) return given;
  const auto found = byFoldedName_.find(text::FoldCase(name));
  return found == byFoldedName_.end() ? given : found->second;
}

}  // namespace velmar::jet
