#include "sample/AccountCodec.h"

#include <array>
#include <cstddef>

namespace velmar::sample {
namespace {

constexpr std::string_view kSubstitution = "4719260583";
/// For each digit its place in the substitution.
constexpr auto kPlaces = [] {
  std::array<std::size_t, 10> places{};
  for (std::size_t place = 0; place < places.size(); ++place)
    places[static_cast<std::size_t>(kSubstitution[place] - '0')] = place;
  return places;
}();
constexpr std::array<std::size_t, 7> kShifts = {3, 8, 1, 6, 9, 4, 2};

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

}  // namespace

std::string AccountCodec::Encode(std::string_view tail) {
  std::string stored(tail);
  for (std::size_t i = 0; i < stored.size(); ++i) {
    if (!IsDigit(stored[i])) continue;
    const auto digit = static_cast<std::size_t>(stored[i] - '0');
    stored[i] = kSubstitution[(digit + kShifts[i % kShifts.size()]) % 10];
  }
  return stored;
}

std::string AccountCodec::Decode(std::string_view stored) {
  std::string tail(stored);
  for (std::size_t i = 0; i < tail.size(); ++i) {
    if (!IsDigit(tail[i])) continue;
    const std::size_t place = kPlaces[static_cast<std::size_t>(tail[i] - '0')];
    tail[i] = static_cast<char>('0' + (place + 10 - kShifts[i % kShifts.size()]) % 10);
  }
  return tail;
}

}  // namespace velmar::sample
