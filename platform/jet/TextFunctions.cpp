#include "platform/jet/TextFunctions.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Dates.h"
#include "platform/jet/FormatPattern.h"
#include "platform/jet/LikePattern.h"
#include "platform/jet/NumberText.h"
#include "platform/text/Case.h"
#include "platform/text/Characters.h"
#include "platform/text/CodePoints.h"
#include "platform/text/Comparison.h"
#include "platform/text/Numbers.h"
#include "platform/text/Search.h"
#include "platform/text/Trim.h"

namespace velmar::jet {
namespace {

// Characters 128 to 159 of Windows-1252 (0 where the code page has none), which Chr and Asc count by.
constexpr std::array<char32_t, 32> kWindows1252{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
constexpr char32_t kFirstWindowsOnly = 128;

[[noreturn]] void FailArgument(const std::string& what) {
  throw RuntimeError(kInvalidProcedureCall, "Argumento no válido: " + what + ".", "Jet SQL");
}

// A number of characters or a position; what a text cannot reach counts as the greatest.
std::size_t Characters(const Arguments& arguments, int index, std::int64_t least) {
  constexpr double kMost = 1e15;
  const std::int64_t count = arguments.Whole(index, -kMost, kMost);
  if (count < least)
    FailArgument("una longitud o posición de un texto no puede ser " + std::to_string(count));
  return static_cast<std::size_t>(count);
}

std::string_view Cut(std::string_view whole, std::size_t start, std::size_t length) {
  const std::size_t from = text::ByteOffset(whole, start);
  const std::string_view rest = whole.substr(from);
  return rest.substr(0, text::ByteOffset(rest, length + 1));
}

void UCase(Arguments& arguments) {
  std::string scratch;
  arguments.Return(text::UCase(arguments.Text(0, scratch)));
}

void LCase(Arguments& arguments) {
  std::string scratch;
  arguments.Return(text::LCase(arguments.Text(0, scratch)));
}

void Left(Arguments& arguments) {
  std::string scratch;
  arguments.Return(Cut(arguments.Text(0, scratch), 1, Characters(arguments, 1, 0)));
}

void Right(Arguments& arguments) {
  std::string scratch;
  const std::string_view whole = arguments.Text(0, scratch);
  const std::size_t length = text::Len(whole);
  const std::size_t count = std::min(Characters(arguments, 1, 0), length);
  arguments.Return(whole.substr(text::ByteOffset(whole, length - count + 1)));
}

void Mid(Arguments& arguments) {
  std::string scratch;
  const std::string_view whole = arguments.Text(0, scratch);
  const std::size_t start = Characters(arguments, 1, 1);
  const std::size_t length = arguments.Count() == 3 ? Characters(arguments, 2, 0) : whole.size();
  arguments.Return(Cut(whole, start, length));
}

void Len(Arguments& arguments) {
  std::string scratch;
  arguments.Return(static_cast<std::int64_t>(text::Len(arguments.Text(0, scratch))));
}

void Trim(Arguments& arguments) {
  std::string scratch;
  arguments.Return(text::Trim(arguments.Text(0, scratch)));
}

void LTrim(Arguments& arguments) {
  std::string scratch;
  arguments.Return(text::LTrim(arguments.Text(0, scratch)));
}

void RTrim(Arguments& arguments) {
  std::string scratch;
  arguments.Return(text::RTrim(arguments.Text(0, scratch)));
}

text::Comparison ComparisonOf(const Arguments& arguments, int index, text::Comparison usual) {
  if (arguments.Count() <= index) return usual;
  return arguments.Integer(index) == 0 ? text::Comparison::kBinary : text::Comparison::kText;
}

void InStr(Arguments& arguments) {
  std::string scratchText;
  std::string scratchSought;
  const bool hasStart = arguments.Count() > 2;
  const int first = hasStart ? 1 : 0;
  const std::size_t start = hasStart ? Characters(arguments, 0, 1) : 1;
  const auto found =
      text::InStr(start, arguments.Text(first, scratchText), arguments.Text(first + 1, scratchSought),
                  ComparisonOf(arguments, 3, text::Comparison::kText));
  arguments.Return(static_cast<std::int64_t>(found));
}

void Replace(Arguments& arguments) {
  std::string scratchText;
  std::string scratchFind;
  std::string scratchWith;
  std::string_view whole = arguments.Text(0, scratchText);
  if (arguments.Count() > 3) whole = whole.substr(text::ByteOffset(whole, Characters(arguments, 3, 1)));
  const long count = arguments.Count() > 4 ? static_cast<long>(arguments.Whole(4, -1, 1e9)) : -1;
  arguments.Return(text::Replace(whole, arguments.Text(1, scratchFind), arguments.Text(2, scratchWith),
                                 ComparisonOf(arguments, 5, text::Comparison::kBinary), count));
}

std::string Capitalised(std::string_view whole) {
  std::string result;
  bool first = true;
  for (std::size_t at = 0; at < whole.size();) {
    const std::size_t start = at;
    const char32_t c = text::NextCodePoint(whole, at);
    const std::string_view character = whole.substr(start, at - start);
    result += first ? text::UCase(character) : text::LCase(character);
    first = c == U' ' || c == U'\t' || c == U'\n' || c == U'\r';
  }
  return result;
}

void StrConv(Arguments& arguments) {
  std::string scratch;
  const std::string_view whole = arguments.Text(0, scratch);
  switch (arguments.Integer(1)) {
    case 1:
      arguments.Return(text::UCase(whole));
      return;
    case 2:
      arguments.Return(text::LCase(whole));
      return;
    case 3:
      arguments.Return(Capitalised(whole));
      return;
    default:
      FailArgument("StrConv admite 1 (mayúsculas), 2 (minúsculas) y 3 (iniciales)");
  }
}

std::string Repeated(std::size_t count, std::string_view character) {
  constexpr std::size_t kMost = 65535;
  if (count > kMost) FailArgument("un texto repetido admite hasta 65535 caracteres");
  std::string result;
  for (std::size_t i = 0; i < count; ++i) result += character;
  return result;
}

void Space(Arguments& arguments) {
  arguments.Return(Repeated(Characters(arguments, 0, 0), " "));
}

std::string Character(std::int64_t code) {
  if (code < 0 || code > 255) FailArgument("el código de un carácter va de 0 a 255");
  auto codePoint = static_cast<char32_t>(code);
  if (codePoint >= kFirstWindowsOnly && codePoint < kFirstWindowsOnly + kWindows1252.size()) {
    const char32_t mapped = kWindows1252[codePoint - kFirstWindowsOnly];
    if (mapped != 0) codePoint = mapped;
  }
  std::string result;
  text::AppendCodePoint(result, codePoint);
  return result;
}

void String(Arguments& arguments) {
  std::string scratch;
  const std::string character =
      arguments.IsText(1) ? text::Left(arguments.Text(1, scratch), 1) : Character(arguments.Integer(1));
  arguments.Return(Repeated(Characters(arguments, 0, 0), character));
}

void Chr(Arguments& arguments) {
  arguments.Return(Character(arguments.Integer(0)));
}

void Asc(Arguments& arguments) {
  std::string scratch;
  const std::string_view whole = arguments.Text(0, scratch);
  if (whole.empty()) FailArgument("Asc necesita un texto que no esté vacío");
  std::size_t at = 0;
  const char32_t c = text::NextCodePoint(whole, at);
  const auto* mapped = std::find(kWindows1252.begin(), kWindows1252.end(), c);
  arguments.Return(static_cast<std::int64_t>(mapped == kWindows1252.end()
                                                 ? c
                                                 : kFirstWindowsOnly +
                                                       static_cast<char32_t>(mapped - kWindows1252.begin())));
}

void Format(Arguments& arguments) {
  std::string scratch;
  std::string scratchFormat;
  const std::string_view shown = arguments.Text(0, scratch);
  if (arguments.Count() == 1) {
    arguments.Return(shown);
    return;
  }
  const FormatPattern pattern(arguments.Text(1, scratchFormat));
  if (pattern.IsText()) {
    arguments.Return(pattern.FormatText(shown));
    return;
  }
  auto number = arguments.IsText(0) ? ReadNumber(shown) : arguments.Number(0);
  if (arguments.IsText(0) && (pattern.IsDate() || !number)) {
    if (const auto date = ParseDate(shown, DayOrder::kDayFirst)) number = date;
  }
  arguments.Return(number ? pattern.FormatNumber(*number) : std::string(shown));
}

void CStr(Arguments& arguments) {
  std::string scratch;
  arguments.Return(arguments.Text(0, scratch));
}

void Str(Arguments& arguments) {
  const std::string shown = text::FromDouble(arguments.Number(0));
  arguments.Return(shown.starts_with('-') ? shown : " " + shown);
}

void Val(Arguments& arguments) {
  std::string scratch;
  arguments.Return(text::Val(arguments.Text(0, scratch)));
}

void Concatenate(Arguments& arguments) {
  std::string result;
  std::string scratch;
  for (int i = 0; i < arguments.Count(); ++i) result += arguments.Text(i, scratch);
  arguments.Return(result);
}

void Like(Arguments& arguments) {
  std::string scratch;
  std::string scratchPattern;
  auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(arguments.Context(), 0));
  std::unique_ptr<LikePattern> compiled;
  if (pattern == nullptr) {
    compiled = std::make_unique<LikePattern>(arguments.Text(0, scratchPattern));
    pattern = compiled.get();
  }
  arguments.Return(pattern->Matches(arguments.Text(1, scratch)) ? 1 : 0);
  if (compiled) {
    sqlite3_set_auxdata(arguments.Context(), 0, compiled.release(),
                        [](void* kept) { delete static_cast<LikePattern*>(kept); });
  }
}

constexpr auto kFunctions = std::to_array<EngineFunction>({
    {"jet_ucase", 1, Callback<UCase>},
    {"jet_lcase", 1, Callback<LCase>},
    {"jet_left", 2, Callback<Left>},
    {"jet_right", 2, Callback<Right>},
    {"jet_mid", -1, Callback<Mid>},
    {"jet_len", 1, Callback<Len>},
    {"jet_trim", 1, Callback<Trim>},
    {"jet_ltrim", 1, Callback<LTrim>},
    {"jet_rtrim", 1, Callback<RTrim>},
    {"jet_instr", -1, Callback<InStr>},
    {"jet_replace", -1, Callback<Replace>},
    {"jet_strconv", 2, Callback<StrConv>},
    {"jet_space", 1, Callback<Space>},
    {"jet_string", 2, Callback<String>},
    {"jet_chr", 1, Callback<Chr>},
    {"jet_asc", 1, Callback<Asc>},
    {"jet_format", -1, Callback<Format>},
    {"jet_cstr", 1, Callback<CStr>},
    {"jet_str", 1, Callback<Str>},
    {"jet_val", 1, Callback<Val>},
    {"jet_concat", -1, Callback<Concatenate, NullRule::kIsTaken>},
    {"jet_like", 2, Callback<Like>},
});

}  // namespace

std::span<const EngineFunction> TextFunctions() {
  return kFunctions;
}

}  // namespace velmar::jet
