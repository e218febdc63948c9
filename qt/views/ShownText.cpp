#include "qt/views/ShownText.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/text/Characters.h"
#include "platform/text/CodePoints.h"

namespace velmar::qt {

ShownText::ShownText(std::string text, bool lines) : text_(std::move(text)), lines_(lines) {
  for (std::size_t offset = 0; offset < text_.size();) {
    bytes_.push_back(offset);
    positions_.push_back(static_cast<int>(shown_.size()));
    char32_t character = text::NextCodePoint(text_, offset);
    if (lines_ && character == U'\r') {
      if (offset < text_.size() && text_[offset] == '\n') continue;
      character = U'\n';
    } else if (lines_ && character == QChar::ParagraphSeparator) {
      character = U'\n';
    }
    shown_.append(QString::fromUcs4(&character, 1));
  }
  bytes_.push_back(text_.size());
  positions_.push_back(static_cast<int>(shown_.size()));
}

int ShownText::Position(long character) const {
  const auto last = static_cast<long>(positions_.size()) - 1;
  return positions_[static_cast<std::size_t>(std::clamp(character, 0L, last))];
}

long ShownText::Character(int position) const {
  const auto found = std::lower_bound(positions_.begin(), positions_.end(), position);
  return static_cast<long>(std::min(found, positions_.end() - 1) - positions_.begin());
}

std::string ShownText::Edited(const QString& edited, long maxLength) const {
  const auto shorter = std::min(shown_.size(), edited.size());
  const auto head = [&] {
    qsizetype same = 0;
    while (same < shorter && shown_[same] == edited[same]) ++same;
    return same > 0 && shown_[same - 1].isHighSurrogate() ? same - 1 : same;
  }();
  const auto tail = [&] {
    qsizetype same = 0;
    while (same < shorter - head && shown_[shown_.size() - 1 - same] == edited[edited.size() - 1 - same])
      ++same;
    return same > 0 && shown_[shown_.size() - same].isLowSurrogate() ? same - 1 : same;
  }();
  const auto first = static_cast<std::size_t>(Character(static_cast<int>(head)));
  const auto last = static_cast<std::size_t>(Character(static_cast<int>(shown_.size() - tail)));

  QString piece = edited.mid(head, edited.size() - head - tail);
  piece.replace("\r\n", "\n").replace('\r', '\n').replace(QChar::ParagraphSeparator, '\n');
  if (lines_) {
    piece.replace('\n', "\r\n");
  } else {
    if (const auto end = piece.indexOf('\n'); end >= 0) piece.truncate(end);
  }
  std::string coming = piece.toStdString();
  if (maxLength > 0) {
    const auto kept = static_cast<long>(first + bytes_.size() - 1 - last);
    coming = text::Left(coming, static_cast<std::size_t>(std::max(maxLength - kept, 0L)));
  }
  return text_.substr(0, bytes_[first]) + coming + text_.substr(bytes_[last]);
}

}  // namespace velmar::qt
