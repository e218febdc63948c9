#include "platform/text/Characters.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::text {
namespace {

bool StartsCharacter(char byte) noexcept {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

// The byte behind the first `count` characters.
std::size_t BytesOf(std::string_view text, std::size_t count) noexcept {
  if (count >= text.size()) return text.size();
  std::size_t offset = 0;
  while (offset < text.size()) {
    if (StartsCharacter(text[offset])) {
      if (count == 0) break;
      --count;
    }
    ++offset;
  }
  return offset;
}

}  // namespace

std::size_t Len(std::string_view text) noexcept {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

std::string Left(std::string_view text, std::size_t count) {
  return std::string(text.substr(0, BytesOf(text, count)));
}

std::string Right(std::string_view text, std::size_t count) {
  if (count >= text.size()) return std::string(text);
  std::size_t offset = text.size();
  while (offset > 0 && count > 0) {
    --offset;
    if (StartsCharacter(text[offset])) --count;
  }
  return std::string(text.substr(offset));
}

std::string Mid(std::string_view text, std::size_t start) {
  return std::string(text.substr(ByteOffset(text, start)));
}

std::string Mid(std::string_view text, std::size_t start, std::size_t length) {
  return Left(text.substr(ByteOffset(text, start)), length);
}

std::size_t ByteOffset(std::string_view text, std::size_t position) {
  if (position == 0) {
    throw RuntimeError(kInvalidProcedureCall,
                       "La posición 0 no existe en un texto: el primer carácter es el 1.", "text");
  }
  return BytesOf(text, position - 1);
}

bool IsValid(std::string_view text) noexcept {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  std::size_t offset = 0;
  while (offset < text.size()) {
    UChar32 codePoint = 0;
    U8_NEXT(bytes, offset, text.size(), codePoint);
    if (codePoint < 0) return false;
  }
  return true;
}

}  // namespace velmar::text
