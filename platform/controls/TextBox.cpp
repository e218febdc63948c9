#include "platform/controls/TextBox.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Characters.h"
#include "platform/text/CodePoints.h"

namespace velmar::controls {
namespace {

constexpr int kBackspace = 8;
constexpr int kEnter = 13;

std::size_t Count(long characters) {
  return static_cast<std::size_t>(std::max(characters, 0L));
}

void RequireNotNegative(const Control& box, const char* property, long value) {
  if (value >= 0) return;
  throw RuntimeError(kInvalidPropertyValue,
                     std::string(property) + " del cuadro de texto \"" + box.Name() + "\" no puede ser " +
                         std::to_string(value) + ".",
                     box.Name());
}

}  // namespace

void TextBox::Text(std::string text) {
  Assign(std::move(text), 0, 0);
}

void TextBox::SelStart(long start) {
  RequireNotNegative(*this, "SelStart", start);
  selStart_ = std::min(start, Length());
  selLength_ = 0;
  NotifyChanged(Property::kCaret);
}

void TextBox::SelLength(long length) {
  RequireNotNegative(*this, "SelLength", length);
  selLength_ = std::min(length, Length() - selStart_);
  NotifyChanged(Property::kCaret);
}

std::string TextBox::SelText() const {
  return text::Mid(text_, Count(selStart_) + 1, Count(selLength_));
}

bool TextBox::UserSetCaret(long start, long length) {
  if (!UserFocus()) return false;
  SelStart(std::max(start, 0L));
  SelLength(std::max(length, 0L));
  return true;
}

bool TextBox::UserType(std::string_view keys) {
  if (!UserFocus()) return false;
  for (std::size_t offset = 0; offset < keys.size();) {
    const char32_t typed = text::NextCodePoint(keys, offset);
    const int key = UserKey(typed == U'\n' ? kEnter : static_cast<int>(typed));
    if (key == 0) continue;
    std::string character;
    if (key != kEnter) {
      text::AppendCodePoint(character, static_cast<char32_t>(key));
    } else if (multiLine_) {
      character = "\r\n";
    } else {
      continue;
    }
    ReplaceSelection(character);
  }
  return true;
}

bool TextBox::UserBackspace() {
  if (!UserFocus()) return false;
  if (UserKey(kBackspace) == 0) return true;
  if (selLength_ == 0 && selStart_ > 0) {
    // A line end is two characters, but one key.
    const bool lineEnd = selStart_ > 1 && text::Mid(text_, Count(selStart_) - 1, 2) == "\r\n";
    selLength_ = lineEnd ? 2 : 1;
    selStart_ -= selLength_;
  }
  ReplaceSelection({});
  return true;
}

bool TextBox::UserPaste(std::string_view text) {
  if (!UserFocus()) return false;
  if (!multiLine_) text = text.substr(0, std::min(text.find_first_of("\r\n"), text.size()));
  ReplaceSelection(text);
  return true;
}

bool TextBox::UserEdit(std::string text, long start, long length) {
  if (!UserFocus()) return false;
  Assign(std::move(text), start, length);
  return true;
}

int TextBox::UserKey(int keyAscii) {
  const auto handler = KeyPress;
  if (handler) handler(keyAscii);
  return keyAscii;
}

void TextBox::ReplaceSelection(std::string_view with) {
  std::string piece(with);
  if (maxLength_ > 0) piece = text::Left(piece, Count(maxLength_ - (Length() - selLength_)));
  const std::string head = text::Left(text_, Count(selStart_));
  const std::string tail = text::Mid(text_, Count(selStart_ + selLength_) + 1);
  const long caret = selStart_ + static_cast<long>(text::Len(piece));
  Assign(head + piece + tail, caret, 0);
}

long TextBox::Length() const noexcept {
  return static_cast<long>(text::Len(text_));
}

void TextBox::Assign(std::string text, long start, long length) {
  if (maxLength_ > 0) text = text::Left(text, Count(maxLength_));
  const bool another = text != text_;
  text_ = std::move(text);
  selStart_ = std::clamp(start, 0L, Length());
  selLength_ = std::clamp(length, 0L, Length() - selStart_);
  if (another) NotifyChanged(Property::kText);
  NotifyChanged(Property::kCaret);
  if (another) Raise(Change);
}

}  // namespace velmar::controls
