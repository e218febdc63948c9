#include "platform/jet/RowHash.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/text/Case.h"

namespace velmar::jet {
namespace {

constexpr std::uint64_t kNull = 1;
constexpr std::uint64_t kNumber = 2;
constexpr std::uint64_t kText = 3;
constexpr std::uint64_t kHighBits = 0x8080808080808080ULL;

constexpr std::uint64_t EachByte(std::uint64_t byte) {
  return byte * 0x0101010101010101ULL;
}

std::uint64_t Mix(std::uint64_t hash, std::uint64_t value) {
  hash = (hash ^ value) * 0x9E3779B97F4A7C15ULL;
  return hash ^ (hash >> 29);
}

/// Eight bytes at once: plain capitals become small, all else stays.
std::uint64_t Lower(std::uint64_t word) {
  const std::uint64_t low = word & ~kHighBits;
  const std::uint64_t fromA = low + EachByte(0x80 - 'A');
  const std::uint64_t beyondZ = low + EachByte(0x7F - 'Z');
  return word | (((fromA ^ beyondZ) & ~word & kHighBits) >> 2);
}

struct TextHash {
  std::uint64_t hash;
  bool ascii;
};

TextHash HashBytes(std::uint64_t hash, std::string_view bytes) {
  hash = Mix(hash, kText + bytes.size());
  std::uint64_t high = 0;
  while (!bytes.empty()) {
    std::uint64_t word = 0;
    const std::size_t size = std::min(bytes.size(), sizeof word);
    std::memcpy(&word, bytes.data(), size);
    high |= word;
    hash = Mix(hash, Lower(word));
    bytes.remove_prefix(size);
  }
  return {hash, (high & kHighBits) == 0};
}

/// Folds ASCII and the accented letters of Latin-1 in place; false if the text holds anything else. Letters
/// of that range are composed and stay so.
bool FoldLatin(std::string& text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x80) {
      if (byte >= 'A' && byte <= 'Z') text[at] = static_cast<char>(byte + 0x20);
      continue;
    }
    if (byte != 0xC3 || at + 1 == text.size()) return false;
    const auto next = static_cast<unsigned char>(text[++at]);
    if (next < 0x80 || next > 0xBF) return false;
    if (next <= 0x9E && next != 0x97) text[at] = static_cast<char>(next + 0x20);
  }
  return true;
}

std::uint64_t HashText(std::uint64_t hash, std::string_view text, std::string& folded) {
  const TextHash plain = HashBytes(hash, text);
  if (plain.ascii) return plain.hash;
  folded.assign(text);
  if (!FoldLatin(folded)) folded = text::FoldCanonical(text);
  return HashBytes(hash, folded).hash;
}

/// A whole number equals a fraction of the same value.
std::uint64_t HashNumber(std::uint64_t hash, double number) {
  const bool whole = number >= -0x1p63 && number < 0x1p63 &&
                     static_cast<double>(static_cast<std::int64_t>(number)) == number;
  return Mix(Mix(hash, kNumber), whole ? static_cast<std::uint64_t>(static_cast<std::int64_t>(number))
                                       : std::bit_cast<std::uint64_t>(number));
}

void RowHash(Arguments& arguments) {
  std::uint64_t hash = 0;
  std::string folded;
  for (int i = 0; i < arguments.Count(); ++i) {
    sqlite3_value* value = arguments.Raw(i);
    switch (sqlite3_value_type(value)) {
      case SQLITE_NULL:
        hash = Mix(hash, kNull);
        break;
      case SQLITE_INTEGER:
        hash = Mix(Mix(hash, kNumber), static_cast<std::uint64_t>(sqlite3_value_int64(value)));
        break;
      case SQLITE_FLOAT:
        hash = HashNumber(hash, sqlite3_value_double(value));
        break;
      default:
        hash = HashText(hash, arguments.Text(i, folded), folded);
    }
  }
  arguments.Return(std::bit_cast<std::int64_t>(hash));
}

constexpr auto kFunctions =
    std::to_array<EngineFunction>({{kRowHash, -1, Callback<RowHash, NullRule::kIsTaken>}});

}  // namespace

std::span<const EngineFunction> RowHashFunctions() {
  return kFunctions;
}

}  // namespace velmar::jet
