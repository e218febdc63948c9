#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/com/Guid.h"
#include "platform/com/Object.h"

namespace velmar::com {

/// The classes that this process can make objects of, by name (regardless of case) and by identifier.
class ClassRegistry {
 public:
  struct Entry {
    std::string progId;
    Guid classId;
    std::function<std::shared_ptr<Object>()> make;
  };

  /// The one of this process.
  static ClassRegistry& Instance();

  /// In place of a class with the same name or identifier.
  void Register(Entry entry);
  /// Nothing if it is not there.
  void Unregister(const Guid& classId);
  const std::vector<Entry>& Classes() const noexcept { return entries_; }
  /// nullptr if there is none; valid until the next change.
  const Entry* Find(std::string_view progId) const;
  const Entry* Find(const Guid& classId) const;

 private:
  std::vector<Entry> entries_;
};

}  // namespace velmar::com
