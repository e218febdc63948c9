#include "platform/text/Collation.h"

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/stringpiece.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Case.h"
#include "platform/text/CodePoints.h"

namespace velmar::text {
namespace {

void Check(UErrorCode status) {
  if (U_FAILURE(status)) {
    throw RuntimeError(
        kInternalError,
        std::string("No se puede ordenar texto en español: faltan datos de la biblioteca ICU (") +
            u_errorName(status) + "). Reinstale el programa.",
        "text");
  }
}

icu::StringPiece Piece(std::string_view text) {
  return {text.data(), static_cast<std::int32_t>(text.size())};
}

unsigned char Byte(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

// The collator, and for texts of plain ASCII the rank of each character, taken from it once.
class Order {
 public:
  static const Order& Instance() {
    static const Order order;
    return order;
  }

  int Collate(std::string_view a, std::string_view b) const {
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult result = collator_->compareUTF8(Piece(a), Piece(b), status);
    Check(status);
    return result;
  }

  // 0 for all that has no weight of its own: control characters and bytes of longer sequences.
  std::uint8_t Rank(unsigned char byte) const { return rank_[byte]; }

 private:
  Order() {
    UErrorCode status = U_ZERO_ERROR;
    collator_.reset(icu::Collator::createInstance(icu::Locale("es"), status));
    Check(status);
    collator_->setStrength(icu::Collator::SECONDARY);
    collator_->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
    collator_->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, status);
    Check(status);

    std::array<char, 128> characters{};
    for (std::size_t i = 0; i < characters.size(); ++i) characters[i] = static_cast<char>(i);
    const auto one = [](const char& c) { return std::string_view(&c, 1); };
    std::stable_sort(characters.begin(), characters.end(),
                     [&](const char& a, const char& b) { return Collate(one(a), one(b)) < 0; });
    std::string_view previous;
    std::uint8_t rank = 0;
    for (const char& c : characters) {
      if (Collate(previous, one(c)) != 0) ++rank;
      rank_[static_cast<unsigned char>(c)] = rank;
      previous = one(c);
    }
  }

  std::unique_ptr<icu::Collator> collator_;
  std::array<std::uint8_t, 256> rank_{};
};

// Bytes at the start that are the same in both or differ only in the case of a plain letter.
std::size_t CommonPrefix(const Order& order, std::string_view a, std::string_view b) {
  const std::size_t end = std::min(a.size(), b.size());
  std::size_t at = 0;
  for (; at + sizeof(std::uint64_t) <= end; at += sizeof(std::uint64_t)) {
    if (std::memcmp(a.data() + at, b.data() + at, sizeof(std::uint64_t)) != 0) break;
  }
  while (at < end) {
    if (a[at] != b[at]) {
      const std::uint8_t rank = order.Rank(Byte(a, at));
      if (rank == 0 || rank != order.Rank(Byte(b, at))) break;
    }
    ++at;
  }
  return at;
}

// False if what follows at this byte may change the weight of the character before it. The first combining
// mark, U+0300, starts with byte 0xCC.
bool EndsCharacter(std::string_view text, std::size_t at) {
  return at >= text.size() || Byte(text, at) < 0xCC;
}

bool SameButForCase(std::string_view a, std::string_view b) {
  std::size_t inA = 0;
  std::size_t inB = 0;
  while (inA < a.size() && inB < b.size()) {
    if (FoldCase(NextCodePoint(a, inA)) != FoldCase(NextCodePoint(b, inB))) return false;
  }
  return inA == a.size() && inB == b.size();
}

}  // namespace

int CompareText(std::string_view a, std::string_view b) {
  const Order& order = Order::Instance();
  std::size_t at = CommonPrefix(order, a, b);
  if (at == a.size() && at == b.size()) return 0;

  const std::uint8_t rankA = at < a.size() ? order.Rank(Byte(a, at)) : 0;
  const std::uint8_t rankB = at < b.size() ? order.Rank(Byte(b, at)) : 0;
  // A plain character on either side decides by itself: nothing before it differs.
  if (rankA != 0 && rankB != 0 && EndsCharacter(a, at + 1) && EndsCharacter(b, at + 1)) {
    return rankA < rankB ? -1 : 1;
  }
  if (at == a.size() && rankB != 0) return -1;
  if (at == b.size() && rankA != 0) return 1;

  // Nothing behind a plain character reaches back over it, so the rest from the last one on decides.
  while (at > 0) {
    --at;
    if (order.Rank(Byte(a, at)) != 0) break;
  }
  a.remove_prefix(at);
  b.remove_prefix(at);
  if (const int collated = order.Collate(a, b); collated != 0) return collated;
  if (SameButForCase(a, b)) return 0;
  return Compare(FoldCanonical(a), FoldCanonical(b), Comparison::kBinary);
}

bool EqualText(std::string_view a, std::string_view b) {
  return CompareText(a, b) == 0;
}

int Compare(std::string_view a, std::string_view b, Comparison comparison) {
  if (comparison == Comparison::kText) return CompareText(a, b);
  const int order = a.compare(b);
  return (order > 0) - (order < 0);
}

bool Equal(std::string_view a, std::string_view b, Comparison comparison) {
  return comparison == Comparison::kText ? EqualText(a, b) : a == b;
}

}  // namespace velmar::text
