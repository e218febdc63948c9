#include "platform/jet/NumberSection.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "platform/jet/Money.h"

namespace velmar::jet {
namespace {

constexpr int kMostDecimals = 15;

std::string Grouped(const std::string& digits) {
  std::string grouped;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) grouped += '.';
    grouped += digits[i];
  }
  return grouped;
}

}  // namespace

NumberSection::NumberSection(const PatternSection& section) : section_(section) {
  bool inDecimals = false;
  for (const PatternPiece& piece : section_) {
    if (piece.literal) continue;
    if (piece.text == ".") inDecimals = true;
    if (piece.text == "," && wholePlaces_ > 0 && !inDecimals) grouped_ = true;
    if (piece.text == "%") factor_ *= 100;
    if (!piece.IsDigitPlace()) continue;
    if (inDecimals) {
      ++decimals_;
      if (piece.text == "0") decimalZeros_ = decimals_;
    } else {
      ++wholePlaces_;
      if (piece.text == "0" || wholeZeros_ > 0) ++wholeZeros_;
    }
  }
  decimals_ = std::min(decimals_, kMostDecimals);
}

std::string NumberSection::Format(double number) const {
  const Digits digits = DigitsOf(number * factor_);
  std::string shown;
  std::size_t place = 0;
  std::size_t decimal = 0;
  bool inDecimals = false;
  for (const PatternPiece& piece : section_) {
    if (piece.literal) {
      shown += piece.text;
    } else if (piece.text == ".") {
      inDecimals = true;
      if (wholePlaces_ == 0) shown += digits.whole;
      if (!digits.fraction.empty() || decimalZeros_ > 0 || decimals_ == 0) shown += ',';
    } else if (piece.text == "%") {
      shown += '%';
    } else if (piece.IsDigitPlace() && inDecimals) {
      if (decimal < digits.fraction.size()) shown += digits.fraction[decimal];
      ++decimal;
    } else if (piece.IsDigitPlace()) {
      shown += AtWholePlace(digits.whole, place++);
    }
  }
  return shown;
}

NumberSection::Digits NumberSection::DigitsOf(double number) const {
  std::array<char, 400> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.*f", decimals_, RoundTo(number, decimals_, Half::kAway));
  const std::string written = buffer.data();
  const std::size_t point = written.find('.');
  Digits digits{written.substr(0, point), point == std::string::npos ? "" : written.substr(point + 1)};
  while (static_cast<int>(digits.fraction.size()) > decimalZeros_ && digits.fraction.ends_with('0'))
    digits.fraction.pop_back();
  if (digits.whole == "0") digits.whole.clear();
  if (digits.whole.size() < wholeZeros_) digits.whole.insert(0, wholeZeros_ - digits.whole.size(), '0');
  return digits;
}

/// Each place shows one digit, the first one also those in front of it.
std::string NumberSection::AtWholePlace(const std::string& whole, std::size_t place) const {
  const bool first = place == 0;
  const std::size_t left = wholePlaces_ - place;
  if (grouped_) return first ? Grouped(whole) : std::string();
  if (whole.size() < left) return {};
  return first ? whole.substr(0, whole.size() - left + 1) : std::string(1, whole[whole.size() - left]);
}

}  // namespace velmar::jet
