#pragma once

#include <vector>

namespace velmar::controls {

class OptionButton;

/// Option buttons of which at most one is chosen. Borrows them; a button that ends leaves by itself.
class OptionGroup {
 public:
  OptionGroup() = default;
  OptionGroup(const OptionGroup&) = delete;
  OptionGroup& operator=(const OptionGroup&) = delete;
  ~OptionGroup();

  void Add(OptionButton& button);
  void Remove(OptionButton& button) noexcept;
  const std::vector<OptionButton*>& Buttons() const noexcept { return buttons_; }

  /// For OptionButton: takes the choice from all others.
  void Chosen(const OptionButton& button);

 private:
  std::vector<OptionButton*> buttons_;
};

}  // namespace velmar::controls
