#include "platform/com/ClassRegistry.h"

#include <utility>

#include "platform/text/Collation.h"

namespace velmar::com {

ClassRegistry& ClassRegistry::Instance() {
  static ClassRegistry registry;
  return registry;
}

void ClassRegistry::Register(Entry entry) {
  std::erase_if(entries_, [&](const Entry& other) {
    return other.classId == entry.classId || text::EqualText(other.progId, entry.progId);
  });
  entries_.push_back(std::move(entry));
}

void ClassRegistry::Unregister(const Guid& classId) {
  std::erase_if(entries_, [&](const Entry& entry) { return entry.classId == classId; });
}

const ClassRegistry::Entry* ClassRegistry::Find(std::string_view progId) const {
  for (const Entry& entry : entries_) {
    if (text::EqualText(entry.progId, progId)) return &entry;
  }
  return nullptr;
}

const ClassRegistry::Entry* ClassRegistry::Find(const Guid& classId) const {
  for (const Entry& entry : entries_) {
    if (entry.classId == classId) return &entry;
  }
  return nullptr;
}

}  // namespace velmar::com
