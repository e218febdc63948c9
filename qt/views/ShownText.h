#pragma once

#include <QString>
#include <string>
#include <vector>

namespace velmar::qt {

/// A control's text as an editor shows it, and the way between their positions: the control counts characters
/// of UTF-8, the editor units of UTF-16. With `lines`, each line end (CR LF, CR, LF or U+2029) shows as one
/// LF.
class ShownText {
 public:
  ShownText(std::string text, bool lines);

  const QString& Text() const noexcept { return shown_; }
  const std::string& Bytes() const noexcept { return text_; }
  /// Where the editor has the character; its end for one behind the text.
  int Position(long character) const;
  /// The character at, or first behind, the editor's position.
  long Character(int position) const;

  /// The control's text once the editor shows `edited`. What was not touched stays as it is; a new line end
  /// becomes CR LF or, without `lines`, ends what comes in. What came in is cut where the text would have
  /// more than `maxLength` characters, 0 for any.
  std::string Edited(const QString& edited, long maxLength) const;

 private:
  std::string text_;
  bool lines_;
  QString shown_;
  std::vector<std::size_t> bytes_;  // where each character starts, and the end
  std::vector<int> positions_;      // the same in the editor
};

}  // namespace velmar::qt
