#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar {

/// A keyed collection that owns its items and keeps the order in which they came. References to items stay
/// valid as long as the collection lives. Keys are told apart exactly.
template <typename T>
class Collection {
 public:
  using const_iterator = typename std::deque<T>::const_iterator;

  /// A key that is already in use is kKeyAlreadyInUse, and the collection stays as it was.
  void Add(T item, std::string key) {
    if (index_.contains(key)) {
      throw RuntimeError(kKeyAlreadyInUse,
                         "La clave «" + key + "» ya está asociada a otro elemento de la colección.",
                         "Collection");
    }
    items_.push_back(std::move(item));
    try {
      index_.emplace(std::move(key), items_.size() - 1);
    } catch (...) {
      items_.pop_back();
      throw;
    }
  }

  /// Null when no item has the key.
  const T* Find(const std::string& key) const {
    const auto found = index_.find(key);
    return found == index_.end() ? nullptr : &items_[found->second];
  }

  /// A key that no item has is kInvalidProcedureCall.
  const T& Item(const std::string& key) const {
    const T* item = Find(key);
    if (item == nullptr) {
      throw RuntimeError(kInvalidProcedureCall,
                         "La colección no tiene ningún elemento con la clave «" + key + "».", "Collection");
    }
    return *item;
  }

  std::size_t Count() const noexcept { return items_.size(); }
  const_iterator begin() const noexcept { return items_.begin(); }
  const_iterator end() const noexcept { return items_.end(); }

 private:
  std::deque<T> items_;
  std::unordered_map<std::string, std::size_t> index_;
};

}  // namespace velmar
