#pragma once

#include <string>

namespace velmar::toolkit {
class Toolkit;
}

namespace velmar::wizard {

/// The messages to the user of the wizard: a beep and a box with the host's title. The toolkit is borrowed.
class UserMessages {
 public:
  explicit UserMessages(toolkit::Toolkit& toolkit) : toolkit_(toolkit) {}

  /// A refusal or a failure: exclamation and OK.
  void Warn(const std::string& text) const;
  /// A question with Yes and No. True for Yes.
  bool Confirm(const std::string& text) const;

 private:
  long Show(const std::string& text, long style) const;

  toolkit::Toolkit& toolkit_;
};

}  // namespace velmar::wizard
