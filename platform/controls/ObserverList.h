#pragma once

#include <algorithm>
#include <vector>

namespace velmar::controls {

/// Who is told of an object's changes, in the order in which they came. Observers are borrowed. One may
/// leave, or send another away, while a notice is on its way: whoever is still in the list is told, nobody
/// else.
template <typename Observer>
class ObserverList {
 public:
  void Add(Observer& observer) { observers_.push_back(&observer); }
  void Remove(Observer& observer) noexcept {
    observers_.erase(std::remove(observers_.begin(), observers_.end(), &observer), observers_.end());
  }

  /// `notice` takes an Observer&.
  template <typename Notice>
  void Notify(Notice notice) {
    if (observers_.empty()) return;
    const std::vector<Observer*> told = observers_;
    for (Observer* observer : told) {
      if (std::find(observers_.begin(), observers_.end(), observer) != observers_.end()) notice(*observer);
    }
  }

 private:
  std::vector<Observer*> observers_;
};

}  // namespace velmar::controls
