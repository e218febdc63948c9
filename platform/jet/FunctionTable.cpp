#include "platform/jet/FunctionTable.h"

#include <algorithm>
#include <array>

#include "platform/jet/Keywords.h"

namespace velmar::jet {
namespace {

using Form = FunctionForm;
using Type = ValueType;

constexpr std::size_t kAny = 1000;

constexpr auto kFunctions = std::to_array<Function>({
    // Choice
    {"IIf", 3, 3, Form::kIif, "", Type::kUnknown},
    {"Switch", 2, kAny, Form::kSwitch, "", Type::kUnknown},
    {"IsNull", 1, 1, Form::kIsNull, "", Type::kBit},
    {"Nz", 1, 2, Form::kNz, "", Type::kUnknown},
    // Text
    {"UCase", 1, 1, Form::kScalar, "jet_ucase", Type::kText},
    {"LCase", 1, 1, Form::kScalar, "jet_lcase", Type::kText},
    {"Left", 2, 2, Form::kScalar, "jet_left", Type::kText},
    {"Right", 2, 2, Form::kScalar, "jet_right", Type::kText},
    {"Mid", 2, 3, Form::kScalar, "jet_mid", Type::kText},
    {"Len", 1, 1, Form::kScalar, "jet_len", Type::kInteger},
    {"Trim", 1, 1, Form::kScalar, "jet_trim", Type::kText},
    {"LTrim", 1, 1, Form::kScalar, "jet_ltrim", Type::kText},
    {"RTrim", 1, 1, Form::kScalar, "jet_rtrim", Type::kText},
    {"InStr", 2, 4, Form::kScalar, "jet_instr", Type::kInteger},
    {"Replace", 3, 6, Form::kScalar, "jet_replace", Type::kText},
    {"StrConv", 2, 2, Form::kScalar, "jet_strconv", Type::kText},
    {"Space", 1, 1, Form::kScalar, "jet_space", Type::kText},
    {"String", 2, 2, Form::kScalar, "jet_string", Type::kText},
    {"Chr", 1, 1, Form::kScalar, "jet_chr", Type::kText},
    {"Asc", 1, 1, Form::kScalar, "jet_asc", Type::kInteger},
    {"Format", 1, 2, Form::kScalar, "jet_format", Type::kText},
    // Conversion
    {"CStr", 1, 1, Form::kToText, "jet_cstr", Type::kText},
    {"Str", 1, 1, Form::kScalar, "jet_str", Type::kText},
    {"Val", 1, 1, Form::kScalar, "jet_val", Type::kDouble},
    {"CLng", 1, 1, Form::kScalar, "jet_clng", Type::kInteger},
    {"CInt", 1, 1, Form::kScalar, "jet_cint", Type::kInteger},
    {"CByte", 1, 1, Form::kScalar, "jet_cbyte", Type::kInteger},
    {"CDbl", 1, 1, Form::kScalar, "jet_cdbl", Type::kDouble},
    {"CSng", 1, 1, Form::kScalar, "jet_csng", Type::kDouble},
    {"CCur", 1, 1, Form::kScalar, "jet_ccur", Type::kCurrency},
    {"CBool", 1, 1, Form::kScalar, "jet_cbool", Type::kBit},
    {"CDate", 1, 1, Form::kScalar, "jet_cdate", Type::kDate},
    {"DateValue", 1, 1, Form::kScalar, "jet_datevalue", Type::kDate},
    {"IsNumeric", 1, 1, Form::kScalar, "jet_isnumeric", Type::kBit},
    {"IsDate", 1, 1, Form::kScalar, "jet_isdate", Type::kBit},
    // Numbers
    {"Abs", 1, 1, Form::kScalar, "jet_abs", Type::kUnknown, true},
    {"Int", 1, 1, Form::kScalar, "jet_int", Type::kUnknown, true},
    {"Fix", 1, 1, Form::kScalar, "jet_fix", Type::kUnknown, true},
    {"Round", 1, 2, Form::kScalar, "jet_round", Type::kUnknown, true},
    {"Sgn", 1, 1, Form::kScalar, "jet_sgn", Type::kInteger},
    {"Sqr", 1, 1, Form::kScalar, "jet_sqr", Type::kDouble},
    // Dates
    {"Year", 1, 1, Form::kScalar, "jet_year", Type::kInteger},
    {"Month", 1, 1, Form::kScalar, "jet_month", Type::kInteger},
    {"Day", 1, 1, Form::kScalar, "jet_day", Type::kInteger},
    {"Hour", 1, 1, Form::kScalar, "jet_hour", Type::kInteger},
    {"Minute", 1, 1, Form::kScalar, "jet_minute", Type::kInteger},
    {"Second", 1, 1, Form::kScalar, "jet_second", Type::kInteger},
    {"Weekday", 1, 2, Form::kScalar, "jet_weekday", Type::kInteger},
    {"MonthName", 1, 2, Form::kScalar, "jet_monthname", Type::kText},
    {"DateSerial", 3, 3, Form::kScalar, "jet_dateserial", Type::kDate},
    {"TimeSerial", 3, 3, Form::kScalar, "jet_timeserial", Type::kDate},
    {"DateAdd", 3, 3, Form::kScalar, "jet_dateadd", Type::kDate},
    {"DateDiff", 3, 4, Form::kScalar, "jet_datediff", Type::kInteger},
    {"DatePart", 2, 3, Form::kScalar, "jet_datepart", Type::kInteger},
    {"Date", 0, 0, Form::kScalar, "jet_date", Type::kDate},
    {"Time", 0, 0, Form::kScalar, "jet_time", Type::kDate},
    {"Now", 0, 0, Form::kScalar, "jet_now", Type::kDate},
    // Groups
    {"Count", 1, 1, Form::kAggregate, "count", Type::kInteger},
    {"Sum", 1, 1, Form::kAggregate, "jet_sum", Type::kUnknown, true},
    {"Avg", 1, 1, Form::kAggregate, "jet_avg", Type::kUnknown},
    {"Min", 1, 1, Form::kExtreme, "min", Type::kUnknown, true},
    {"Max", 1, 1, Form::kExtreme, "max", Type::kUnknown, true},
    {"First", 1, 1, Form::kPosition, "jet_first", Type::kUnknown, true},
    {"Last", 1, 1, Form::kPosition, "jet_last", Type::kUnknown, true},
});

}  // namespace

const Function* FindFunction(std::string_view name) {
  const bool dollar = name.ends_with('$');
  if (dollar) name.remove_suffix(1);
  const auto found = std::find_if(kFunctions.begin(), kFunctions.end(), [name](const Function& function) {
    return EqualWord(function.name, name);
  });
  if (found == kFunctions.end() || (dollar && found->type != ValueType::kText)) return nullptr;
  return &*found;
}

std::span<const Function> AllFunctions() {
  return kFunctions;
}

}  // namespace velmar::jet
