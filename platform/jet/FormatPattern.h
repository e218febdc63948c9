#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/NumberSection.h"

namespace velmar::jet {

/// The pattern of a Format (its picture), as the office's Spanish settings show it: decimal comma, point
/// between thousands, Spanish names of months and days.
///
/// - Numbers: 0 # . , % and up to three sections for positive, negative and zero values.
/// - Dates: d dd ddd dddd m mm mmm mmmm yy yyyy q w ww h hh n nn s ss AM/PM; m behind h means minutes.
/// - Texts: @ and & for characters from the right, < and > for lower and upper case.
/// - Names: General Number, Currency, Fixed, Standard, Percent, Yes/No, True/False, General Date, Long Date,
///   Medium Date, Short Date, Long Time, Medium Time, Short Time.
///
/// A text in double quotes and a character behind \ stand for themselves.
class FormatPattern {
 public:
  explicit FormatPattern(std::string_view pattern);

  bool IsDate() const { return isDate_; }
  bool IsText() const { return isText_; }
  /// A number or, for a pattern of a date, the date that the number stands for.
  std::string FormatNumber(double number) const;
  std::string FormatText(std::string_view text) const;

 private:
  static std::vector<PatternSection> Split(std::string_view pattern);
  std::string FormatDate(double date) const;

  std::vector<PatternSection> sections_;
  bool isDate_ = false;
  bool isText_ = false;
  bool isGeneral_ = false;
};

/// The name of a month (1 to 12) in Spanish.
std::string_view SpanishMonth(int month);

}  // namespace velmar::jet
