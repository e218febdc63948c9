#include "platform/text/Search.h"

#include <optional>

#include "platform/text/Case.h"
#include "platform/text/Characters.h"
#include "platform/text/CodePoints.h"

namespace velmar::text {
namespace {

struct Match {
  std::size_t begin;
  std::size_t end;
};

// Finds one sought text again and again; offsets are bytes.
class Finder {
 public:
  Finder(std::string_view sought, Comparison comparison) : sought_(sought), comparison_(comparison) {
    if (comparison_ == Comparison::kBinary) return;
    for (std::size_t offset = 0; offset < sought.size();) {
      folded_ += FoldCase(NextCodePoint(sought, offset));
    }
  }

  std::optional<Match> Find(std::string_view text, std::size_t from) const {
    if (comparison_ == Comparison::kBinary) {
      const std::size_t begin = text.find(sought_, from);
      if (begin == std::string_view::npos) return std::nullopt;
      return Match{begin, begin + sought_.size()};
    }
    if (folded_.empty()) return Match{from, from};
    for (std::size_t begin = from; begin < text.size();) {
      std::size_t end = begin;
      std::size_t matched = 0;
      std::size_t next = begin;
      while (matched < folded_.size() && end < text.size() &&
             FoldCase(NextCodePoint(text, end)) == folded_[matched]) {
        if (matched == 0) next = end;
        ++matched;
      }
      if (matched == folded_.size()) return Match{begin, end};
      begin = matched == 0 ? end : next;
    }
    return std::nullopt;
  }

 private:
  std::string_view sought_;
  Comparison comparison_;
  std::u32string folded_;
};

}  // namespace

std::size_t InStr(std::size_t start, std::string_view text, std::string_view sought, Comparison comparison) {
  const std::size_t from = ByteOffset(text, start);
  if (from >= text.size()) return 0;
  const auto match = Finder(sought, comparison).Find(text, from);
  return match ? start + Len(text.substr(from, match->begin - from)) : 0;
}

bool Contains(std::string_view text, std::string_view sought, Comparison comparison) {
  return Finder(sought, comparison).Find(text, 0).has_value();
}

std::string Replace(std::string_view text, std::string_view find, std::string_view with,
                    Comparison comparison, long count) {
  if (find.empty()) return std::string(text);
  const Finder finder(find, comparison);
  std::string result;
  result.reserve(text.size());
  std::size_t copied = 0;
  for (; count != 0; count -= count > 0 ? 1 : 0) {
    const auto match = finder.Find(text, copied);
    if (!match) break;
    result.append(text.substr(copied, match->begin - copied)).append(with);
    copied = match->end;
  }
  return result.append(text.substr(copied));
}

std::vector<std::string> Split(std::string_view text, std::string_view delimiter) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  std::size_t begin = 0;
  while (!delimiter.empty()) {
    const std::size_t end = text.find(delimiter, begin);
    if (end == std::string_view::npos) break;
    pieces.emplace_back(text.substr(begin, end - begin));
    begin = end + delimiter.size();
  }
  pieces.emplace_back(text.substr(begin));
  return pieces;
}

std::string Join(const std::vector<std::string>& pieces, std::string_view delimiter) {
  std::string result;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i != 0) result.append(delimiter);
    result.append(pieces[i]);
  }
  return result;
}

}  // namespace velmar::text
