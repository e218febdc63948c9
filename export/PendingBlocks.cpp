#include "export/PendingBlocks.h"

#include <string>

#include "platform/text/Search.h"

namespace velmar::exporting {

bool PendingBlocks::Holds(int block) const {
  return text::Contains(holder_.Tag(), "|" + std::to_string(block) + "|");
}

void PendingBlocks::Add(int block) {
  const std::string number = std::to_string(block) + "|";
  holder_.Tag(Empty() ? "|" + number : holder_.Tag() + number);
}

void PendingBlocks::Remove(int block) {
  const std::string rest = text::Replace(holder_.Tag(), "|" + std::to_string(block) + "|", "|");
  holder_.Tag(rest == "|" ? std::string() : rest);
}

void PendingBlocks::Clear() {
  holder_.Tag("");
}

}  // namespace velmar::exporting
