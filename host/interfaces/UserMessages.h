#pragma once

#include <string>

namespace velmar::toolkit {
class Toolkit;
}

namespace velmar {

/// The messages of the component's windows: boxes with the host's title, behind a beep but for Ask. The
/// toolkit is borrowed, and `objHost` must be set.
class UserMessages {
 public:
  explicit UserMessages(toolkit::Toolkit& toolkit) : toolkit_(toolkit) {}

  /// A refusal or a failure: exclamation and OK.
  void Warn(const std::string& text) const;
  /// A report: information and OK.
  void Inform(const std::string& text) const;
  /// A question with Yes and No. True for Yes.
  bool Confirm(const std::string& text) const;
  /// The same without the beep.
  bool Ask(const std::string& text) const;

 private:
  void Tell(const std::string& text, long style) const;

  toolkit::Toolkit& toolkit_;
};

}  // namespace velmar
