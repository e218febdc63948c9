#include "platform/jet/LikePattern.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/text/Case.h"
#include "platform/text/CodePoints.h"

namespace velmar::jet {
namespace {

char32_t FoldAscii(unsigned char c) {
  return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c;
}

}  // namespace

LikePattern::LikePattern(std::string_view pattern) {
  std::size_t at = 0;
  while (at < pattern.size()) {
    if (pattern[at] == '[') {
      if (const std::size_t close = ReadSet(pattern, at); close != std::string_view::npos) {
        at = close + 1;
        continue;
      }
    }
    const char32_t c = text::NextCodePoint(pattern, at);
    Piece piece;
    if (c == U'%') {
      piece.kind = Kind::kMany;
      if (!pieces_.empty() && pieces_.back().kind == Kind::kMany) continue;
    } else if (c == U'_') {
      piece.kind = Kind::kOne;
    } else {
      piece.character = text::FoldCase(c);
    }
    pieces_.push_back(std::move(piece));
  }
}

// Reads the set that opens there and gives the place of its closing bracket, or npos if there is none.
std::size_t LikePattern::ReadSet(std::string_view pattern, std::size_t open) {
  std::size_t at = open + 1;
  Piece piece;
  piece.kind = Kind::kSet;
  if (at < pattern.size() && pattern[at] == '!') {
    piece.negated = true;
    ++at;
  }
  const std::size_t close = pattern.find(']', at);
  if (close == std::string_view::npos) return close;
  const std::string_view set = pattern.substr(0, close);
  while (at < set.size()) {
    Range range;
    range.first = range.last = text::FoldCase(text::NextCodePoint(set, at));
    if (at + 1 < set.size() && set[at] == '-') {
      ++at;
      range.last = text::FoldCase(text::NextCodePoint(set, at));
    }
    piece.ranges.push_back(range);
  }
  // An empty set matches the empty text, and an empty excluding one any character.
  if (piece.ranges.empty() && !piece.negated) return close;
  pieces_.push_back(std::move(piece));
  return close;
}

bool LikePattern::Fits(const Piece& piece, char32_t folded) {
  switch (piece.kind) {
    case Kind::kCharacter:
      return piece.character == folded;
    case Kind::kOne:
    case Kind::kMany:
      return true;
    case Kind::kSet:
      return std::any_of(piece.ranges.begin(), piece.ranges.end(), [folded](const Range& range) {
               return range.first <= folded && folded <= range.last;
             }) != piece.negated;
  }
  return false;
}

// Goes back only to the last %: what an earlier one could take, the last one can take as well.
template <typename Next>
bool LikePattern::Run(std::string_view text, const Next& next) const {
  constexpr auto kNone = std::string_view::npos;
  std::size_t at = 0;
  std::size_t piece = 0;
  std::size_t manyPiece = kNone;
  std::size_t manyAt = 0;
  while (at < text.size()) {
    if (piece < pieces_.size() && pieces_[piece].kind == Kind::kMany) {
      manyPiece = piece++;
      manyAt = at;
      if (piece == pieces_.size()) return true;
      continue;
    }
    std::size_t behind = at;
    const char32_t c = next(text, behind);
    if (piece < pieces_.size() && Fits(pieces_[piece], c)) {
      ++piece;
      at = behind;
      continue;
    }
    if (manyPiece == kNone) return false;
    piece = manyPiece + 1;
    next(text, manyAt);
    at = manyAt;
  }
  while (piece < pieces_.size() && pieces_[piece].kind == Kind::kMany) ++piece;
  return piece == pieces_.size();
}

bool LikePattern::Matches(std::string_view text) const {
  if (text::IsAscii(text)) {
    return Run(text, [](std::string_view whole, std::size_t& at) {
      return FoldAscii(static_cast<unsigned char>(whole[at++]));
    });
  }
  return Run(text, [](std::string_view whole, std::size_t& at) {
    return text::FoldCase(text::NextCodePoint(whole, at));
  });
}

}  // namespace velmar::jet
