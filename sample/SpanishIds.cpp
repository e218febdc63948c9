#include "sample/SpanishIds.h"

#include <algorithm>

namespace velmar::sample {
namespace {

constexpr std::string_view kControlLetters = "TRWAGMYFPDXBNJZSQVHLCKE";
constexpr std::string_view kCifLetters = "JABCDEFGHI";
constexpr std::string_view kCifKinds = "ABCDEFGHJNPQRSUVW";
constexpr std::string_view kLetterEndedKinds = "PQRSNW";
constexpr std::string_view kDigitEndedKinds = "ABEH";

bool Holds(std::string_view set, char character) {
  return set.find(character) != std::string_view::npos;
}

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::uint32_t ToNumber(std::string_view digits) {
  std::uint32_t number = 0;
  for (char digit : digits) number = number * 10 + static_cast<std::uint32_t>(digit - '0');
  return number;
}

std::string Padded(std::uint32_t number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width > digits.size() ? width - digits.size() : 0, '0') + digits;
}

/// The control value of seven digits: those at odd places count doubled, digit by digit.
std::size_t CifControl(std::string_view digits) {
  int sum = 0;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    const int digit = digits[i] - '0';
    sum += i % 2 == 1 ? digit : digit * 2 / 10 + digit * 2 % 10;
  }
  return static_cast<std::size_t>((10 - sum % 10) % 10);
}

bool IsValidCif(std::string_view id) {
  const std::string_view digits = id.substr(1, 7);
  if (!AllDigits(digits)) return false;
  const std::size_t control = CifControl(digits);
  const bool digitFits = id[8] == static_cast<char>('0' + control);
  const bool letterFits = id[8] == kCifLetters[control];
  if (Holds(kLetterEndedKinds, id[0])) return letterFits;
  if (Holds(kDigitEndedKinds, id[0])) return digitFits;
  return digitFits || letterFits;
}

}  // namespace

char NifLetter(std::uint32_t number) {
  return kControlLetters[number % kControlLetters.size()];
}

std::string MakeNif(std::uint32_t number) {
  return Padded(number, 8) + NifLetter(number);
}

std::string MakeNie(char prefix, std::uint32_t number) {
  const std::uint32_t leading = static_cast<std::uint32_t>(prefix - 'X');
  return prefix + Padded(number, 7) + NifLetter(leading * 10'000'000 + number);
}

std::string MakeCif(char kind, std::uint32_t number) {
  const std::string digits = Padded(number, 7);
  const std::size_t control = CifControl(digits);
  const char last = Holds(kLetterEndedKinds, kind) ? kCifLetters[control] : static_cast<char>('0' + control);
  return kind + digits + last;
}

bool IsValidTaxId(std::string_view given) {
  if (given.size() != 9) return false;
  std::string id(given);
  for (char& character : id) {
    if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 'a' + 'A');
  }
  const std::string_view text = id;
  const std::string_view digits = text.substr(1, 7);
  if (AllDigits(text.substr(0, 8))) return id[8] == NifLetter(ToNumber(text.substr(0, 8)));
  if (Holds("KLM", id[0])) return AllDigits(digits) && id[8] == NifLetter(ToNumber(digits));
  if (Holds("XYZ", id[0])) {
    const std::uint32_t leading = static_cast<std::uint32_t>(id[0] - 'X');
    return AllDigits(digits) && id[8] == NifLetter(leading * 10'000'000 + ToNumber(digits));
  }
  return Holds(kCifKinds, id[0]) && IsValidCif(text);
}

}  // namespace velmar::sample
