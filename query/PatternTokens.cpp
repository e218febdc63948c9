#include "query/PatternTokens.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "platform/text/Characters.h"
#include "query/FilterSyntax.h"

namespace velmar {

namespace {

struct Pattern {
  std::string_view token;
  bool wildcardInFront;
  bool wildcardBehind;
};

constexpr std::array kPatterns = {
    Pattern{"[Comience por]", false, true},
    Pattern{"[Que contenga]", true, true},
    Pattern{"[Acabe en]", true, false},
};

constexpr std::array<std::string_view, 4> kKeptTokens = {"[Y]", "[O]", "[Entre]", "[Igual a uno de]"};

constexpr std::size_t kShownCharacters = 40;

std::string Shown(std::string_view text) {
  const bool cut = text::Len(text) > kShownCharacters;
  return "«" + (cut ? text::Left(text, kShownCharacters) + "…" : std::string(text)) + "»";
}

/// Walks once over the text. What a token asks of its value waits until the value's marks come by.
class PatternScan {
 public:
  explicit PatternScan(const GroupedFilter& filter) : filter_(filter), text_(filter.Text()) {
    result_.reserve(text_.size() + text_.size() / 8);
  }

  std::string Run() {
    std::size_t at = 0;
    while (at < text_.size()) {
      const std::string_view rest = text_.substr(at);
      if (rest.front() == '[') {
        at += TakeBracketed(at);
      } else if (rest.starts_with(kOpeningMark)) {
        at += TakeOpeningMark();
      } else if (rest.starts_with(kClosingMark)) {
        at += TakeClosingMark(at);
      } else {
        at += TakePlain(rest);
      }
    }
    if (awaitsOpening_) ThrowValueMissing(*awaitsOpening_);
    if (awaitsClosing_) ThrowValueMissing(*awaitsClosing_);
    return std::move(result_);
  }

 private:
  /// The first byte, and all up to one with which a bracket or a mark may start.
  std::size_t TakePlain(std::string_view rest) {
    std::size_t length = 1;
    while (length < rest.size() && rest[length] != '[' && rest[length] != kOpeningMark.front() &&
           rest[length] != kClosingMark.front()) {
      ++length;
    }
    result_.append(rest.substr(0, length));
    return length;
  }

  std::size_t TakeBracketed(std::size_t at) {
    const std::size_t end = text_.find(']', at);
    if (end == text_.npos) {
      throw FilterFault(filter_.Typed({at, 1}), "el corchete «[» no se cierra; se esperaba «]»");
    }
    const TextSpan place{at, end + 1 - at};
    const std::string_view token = text_.substr(place.offset, place.length);
    if (std::find(kKeptTokens.begin(), kKeptTokens.end(), token) != kKeptTokens.end()) {
      result_.append(token);
      return token.size();
    }
    const auto pattern = std::find_if(kPatterns.begin(), kPatterns.end(),
                                      [&](const Pattern& candidate) { return candidate.token == token; });
    if (pattern == kPatterns.end()) {
      throw FilterFault(filter_.Typed(place),
                        Shown(token) +
                            " no es una palabra de los filtros; se esperaba [Comience por], "
                            "[Que contenga], [Acabe en], [Entre], [Igual a uno de], [Y] u [O], "
                            "escrita exactamente así");
    }
    result_.append(" LIKE ");
    if (!awaitsOpening_) awaitsOpening_ = place;
    if (!awaitsClosing_) awaitsClosing_ = place;
    if (pattern->wildcardInFront) ++wildcardsInFront_;
    if (pattern->wildcardBehind) ++wildcardsBehind_;
    return token.size();
  }

  std::size_t TakeOpeningMark() {
    valueOpen_ = true;
    awaitsOpening_.reset();
    result_.append(kOpeningMark).append(wildcardsInFront_, '%');
    wildcardsInFront_ = 0;
    return kOpeningMark.size();
  }

  std::size_t TakeClosingMark(std::size_t at) {
    if (!valueOpen_ || awaitsOpening_) {
      throw FilterFault(filter_.Typed({at, kClosingMark.size()}),
                        "hay una marca de cierre «´» sin su marca de apertura; se esperaba antes «`»");
    }
    valueOpen_ = false;
    awaitsClosing_.reset();
    result_.append(wildcardsBehind_, '%').append(kClosingMark);
    wildcardsBehind_ = 0;
    return kClosingMark.size();
  }

  [[noreturn]] void ThrowValueMissing(TextSpan place) const {
    throw FilterFault(filter_.Typed(place), "falta el valor de " +
                                                Shown(text_.substr(place.offset, place.length)) +
                                                "; se esperaba detrás un valor entre las marcas ` y ´");
  }

  const GroupedFilter& filter_;
  std::string_view text_;
  std::string result_;
  bool valueOpen_ = false;
  std::optional<TextSpan> awaitsOpening_;
  std::optional<TextSpan> awaitsClosing_;
  std::size_t wildcardsInFront_ = 0;
  std::size_t wildcardsBehind_ = 0;
};

}  // namespace

std::string ReplacePatternTokens(const GroupedFilter& filter) {
  return PatternScan(filter).Run();
}

}  // namespace velmar
