#include "platform/text/Case.h"

#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <cstddef>
#include <cstdint>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/CodePoints.h"

namespace velmar::text {
namespace {

char32_t Lower(char32_t codePoint) noexcept {
  if (codePoint < 0x80) return codePoint >= U'A' && codePoint <= U'Z' ? codePoint + 0x20 : codePoint;
  return static_cast<char32_t>(u_tolower(static_cast<UChar32>(codePoint)));
}

char32_t Upper(char32_t codePoint) noexcept {
  if (codePoint < 0x80) return codePoint >= U'a' && codePoint <= U'z' ? codePoint - 0x20 : codePoint;
  return static_cast<char32_t>(u_toupper(static_cast<UChar32>(codePoint)));
}

template <typename Mapping>
std::string Mapped(std::string_view text, Mapping map) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    const auto byte = static_cast<unsigned char>(text[offset]);
    if (byte < 0x80) {
      result += static_cast<char>(map(byte));
      ++offset;
    } else {
      AppendCodePoint(result, map(NextCodePoint(text, offset)));
    }
  }
  return result;
}

using Form = const icu::Normalizer2* (*)(UErrorCode& status);

std::string Normalized(std::string_view text, Form instance) {
  UErrorCode status = U_ZERO_ERROR;
  std::string normalized;
  const icu::Normalizer2* form = instance(status);
  if (U_SUCCESS(status)) {
    const icu::StringPiece piece(text.data(), static_cast<std::int32_t>(text.size()));
    form->normalize(icu::UnicodeString::fromUTF8(piece), status).toUTF8String(normalized);
  }
  if (U_FAILURE(status)) {
    throw RuntimeError(kInternalError,
                       std::string("La biblioteca ICU no puede normalizar un texto (") + u_errorName(status) +
                           "). Reinstale el programa.",
                       "text");
  }
  return normalized;
}

}  // namespace

std::string LCase(std::string_view text) {
  return Mapped(text, Lower);
}

std::string UCase(std::string_view text) {
  return Mapped(text, Upper);
}

std::string FoldCase(std::string_view text) {
  return Mapped(text, [](char32_t codePoint) { return FoldCase(codePoint); });
}

std::string FoldCanonical(std::string_view text) {
  if (IsAscii(text)) return FoldCase(text);
  // Some composed letters have no small letter of their own, but their parts have.
  const std::string parts = Normalized(text, icu::Normalizer2::getNFDInstance);
  return Normalized(FoldCase(parts), icu::Normalizer2::getNFCInstance);
}

char32_t FoldCase(char32_t codePoint) noexcept {
  if (codePoint < 0x80) return Lower(codePoint);
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(codePoint), U_FOLD_CASE_DEFAULT));
}

}  // namespace velmar::text
