#include "platform/com/Guid.h"

#include <charconv>
#include <cstddef>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::com {
namespace {

constexpr std::string_view kShape = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

std::uint64_t HexDigits(std::string_view text, std::string_view whole) {
  std::uint64_t value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value, 16);
  if (result.ec != std::errc{} || result.ptr != text.data() + text.size()) {
    throw RuntimeError(kInvalidProcedureCall,
                       "\"" + std::string(whole) + "\" no es un identificador de clase.", "CreateObject");
  }
  return value;
}

void AppendHex(std::string& text, std::uint64_t value, int digits) {
  for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4)
    text += "0123456789ABCDEF"[(value >> shift) & 0xFU];
}

}  // namespace

Guid Guid::FromText(std::string_view text) {
  std::string_view bare = text;
  if (bare.size() == kShape.size() + 2 && bare.front() == '{' && bare.back() == '}') {
    bare = bare.substr(1, kShape.size());
  }
  bool shaped = bare.size() == kShape.size();
  for (std::size_t i = 0; shaped && i < kShape.size(); ++i) shaped = (kShape[i] == '-') == (bare[i] == '-');
  if (!shaped) HexDigits({}, text);

  Guid guid;
  guid.data1 = static_cast<std::uint32_t>(HexDigits(bare.substr(0, 8), text));
  guid.data2 = static_cast<std::uint16_t>(HexDigits(bare.substr(9, 4), text));
  guid.data3 = static_cast<std::uint16_t>(HexDigits(bare.substr(14, 4), text));
  std::size_t at = 19;
  for (std::uint8_t& byte : guid.data4) {
    if (bare[at] == '-') ++at;
    byte = static_cast<std::uint8_t>(HexDigits(bare.substr(at, 2), text));
    at += 2;
  }
  return guid;
}

std::string Guid::ToText() const {
  std::string text = "{";
  AppendHex(text, data1, 8);
  text += '-';
  AppendHex(text, data2, 4);
  text += '-';
  AppendHex(text, data3, 4);
  text += '-';
  for (std::size_t i = 0; i < data4.size(); ++i) {
    if (i == 2) text += '-';
    AppendHex(text, data4[i], 2);
  }
  return text + "}";
}

}  // namespace velmar::com
