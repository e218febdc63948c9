#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/controls/Control.h"

namespace velmar::controls {

/// A box to type in. The caret and the selection count characters from 0 and keep their place while the box
/// does not have the focus.
class TextBox : public Control {
 public:
  using Control::Control;

  const std::string& Text() const noexcept { return text_; }
  /// Replaces the text, cut to MaxLength; the caret goes to the start. Change is raised if it is another
  /// text.
  void Text(std::string text);

  /// Where the selection, or with none the caret, begins.
  long SelStart() const noexcept { return selStart_; }
  /// Moves the caret, at most to the end, and drops the selection. Raises kInvalidPropertyValue below 0.
  void SelStart(long start);
  long SelLength() const noexcept { return selLength_; }
  /// Selects from SelStart on, at most to the end. Raises kInvalidPropertyValue below 0.
  void SelLength(long length);
  std::string SelText() const;

  bool MultiLine() const noexcept { return multiLine_; }
  void MultiLine(bool multiLine) noexcept { multiLine_ = multiLine; }
  /// The greatest number of characters, 0 for any.
  long MaxLength() const noexcept { return maxLength_; }
  void MaxLength(long length) noexcept { maxLength_ = length; }

  /// The user moves the caret or selects.
  bool UserSetCaret(long start, long length = 0);
  /// The user types: KeyPress for each character, which may change or drop it; what is left replaces the
  /// selection. The Enter key is "\r" (or "\n"): it makes a line only in a box of several lines.
  bool UserType(std::string_view keys);
  /// The user takes away the selection or else the character before the caret.
  bool UserBackspace();
  /// The user pastes: replaces the selection. A box of one line takes the first line only.
  bool UserPaste(std::string_view text);
  /// An editor of the view's own has changed the text: all of its new state.
  bool UserEdit(std::string text, long start, long length);
  /// A key is about to reach the view's own editor. The character that is to count instead, 0 for none.
  int UserKey(int keyAscii);

  /// Takes the character's code, 13 for Enter; set to 0 it is dropped.
  std::function<void(int& keyAscii)> KeyPress;
  std::function<void()> Change;

 private:
  void ReplaceSelection(std::string_view with);
  long Length() const noexcept;
  void Assign(std::string text, long start, long length);

  std::string text_;
  long selStart_ = 0;
  long selLength_ = 0;
  long maxLength_ = 0;
  bool multiLine_ = false;
};

}  // namespace velmar::controls
