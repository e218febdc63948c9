#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace velmar::jet {

/// A sign of a format pattern, or a text that stands for itself.
struct PatternPiece {
  std::string text;
  bool literal = false;

  bool IsDigitPlace() const { return !literal && (text == "0" || text == "#"); }
};

using PatternSection = std::vector<PatternPiece>;

/// The section of a format pattern for positive, negative or zero numbers: 0 # . , % and literals.
class NumberSection {
 public:
  /// The section must outlive this object.
  explicit NumberSection(const PatternSection& section);

  /// number: 0 or greater; a sign is the caller's affair.
  std::string Format(double number) const;

 private:
  /// Digits in front of the decimal comma and behind it, as many as are shown.
  struct Digits {
    std::string whole;
    std::string fraction;
  };

  Digits DigitsOf(double number) const;
  std::string AtWholePlace(const std::string& whole, std::size_t place) const;

  const PatternSection& section_;
  std::size_t wholePlaces_ = 0;
  std::size_t wholeZeros_ = 0;  ///< digits in front of the comma that are always shown
  int decimals_ = 0;
  int decimalZeros_ = 0;  ///< digits behind the comma that are always shown
  bool grouped_ = false;
  double factor_ = 1;  ///< of percentages
};

}  // namespace velmar::jet
