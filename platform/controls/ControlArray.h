#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::controls {

/// Controls of one kind under one name, told apart by an index from 0, which may have gaps. Owns them. What
/// is common to all, such as the handler that takes the index, is given once with Wire and holds for elements
/// that are loaded later, too.
template <typename T>
class ControlArray {
 public:
  using Wiring = std::function<void(T& control, int index)>;

  explicit ControlArray(std::string name) : name_(std::move(name)) {}

  const std::string& Name() const noexcept { return name_; }
  int Count() const noexcept { return static_cast<int>(elements_.size()); }
  /// The greatest index, -1 for an empty array.
  int UBound() const noexcept { return elements_.empty() ? -1 : elements_.rbegin()->first; }
  bool Has(int index) const noexcept { return elements_.count(index) != 0; }

  /// Raises kSubscriptOutOfRange for an index with no element.
  T& operator()(int index) const {
    const auto found = elements_.find(index);
    if (found == elements_.end()) Fail(kSubscriptOutOfRange, index, "no existe");
    return *found->second;
  }

  /// Makes the element; `arguments` follow the name in its constructor. Raises kKeyAlreadyInUse if it exists.
  template <typename... Arguments>
  T& Load(int index, Arguments&&... arguments) {
    if (index < 0) Fail(kSubscriptOutOfRange, index, "no es posible");
    if (Has(index)) Fail(kKeyAlreadyInUse, index, "ya existe");
    T& control = *elements_.emplace(index, std::make_unique<T>(name_, std::forward<Arguments>(arguments)...))
                      .first->second;
    if (wiring_) wiring_(control, index);
    return control;
  }

  /// Ends the element. Raises kSubscriptOutOfRange for an index with no element.
  void Unload(int index) {
    if (elements_.erase(index) == 0) Fail(kSubscriptOutOfRange, index, "no existe");
  }

  /// Applies `wiring` to every element, now and when further ones are loaded.
  void Wire(Wiring wiring) {
    wiring_ = std::move(wiring);
    ForEach(wiring_);
  }

  /// In the order of the indexes.
  void ForEach(const Wiring& action) const {
    for (const auto& [index, control] : elements_) action(*control, index);
  }

 private:
  [[noreturn]] void Fail(long number, int index, const char* what) const {
    throw RuntimeError(number, "El elemento " + std::to_string(index) + " de \"" + name_ + "\" " + what + ".",
                       name_);
  }

  std::string name_;
  std::map<int, std::unique_ptr<T>> elements_;
  Wiring wiring_;
};

}  // namespace velmar::controls
