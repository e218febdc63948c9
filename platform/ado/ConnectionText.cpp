#include "platform/ado/ConnectionText.h"

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Collation.h"
#include "platform/text/Trim.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;
using velmar::text::EqualText;
using velmar::text::Trim;

constexpr std::string_view kSource = "ADODB.Connection";

std::string Quoted(const std::string& value) {
  const bool plain = value.find(';') == std::string::npos &&
                     (value.empty() || (value.front() != '\'' && value.front() != '"' &&
                                        value.front() != ' ' && value.back() != ' '));
  if (plain) return value;
  std::string quoted = "\"";
  for (const char byte : value) {
    if (byte == '"') quoted += '"';
    quoted += byte;
  }
  return quoted + '"';
}

/// Reads one quoted value; position stands on the opening quote and ends behind the closing one.
std::string ReadQuoted(std::string_view text, std::size_t& position) {
  const std::size_t start = position;
  const char quote = text[position++];
  std::string value;
  while (position < text.size()) {
    if (text[position] != quote) {
      value += text[position++];
    } else if (position + 1 < text.size() && text[position + 1] == quote) {
      value += quote;
      position += 2;
    } else {
      ++position;
      return value;
    }
  }
  throw RuntimeError(velmar::kInvalidProcedureCall,
                     "La cadena de conexión no es válida: falta la comilla de cierre de un valor.",
                     std::string(kSource), velmar::TextSpan{start, text.size() - start});
}

}  // namespace

ConnectionText::ConnectionText(std::string_view text) {
  std::size_t position = 0;
  while (position < text.size()) {
    const std::size_t start = position;
    const std::size_t stop = std::min(text.find(';', position), text.size());
    const std::size_t equals = text.find('=', position);
    if (equals == std::string_view::npos || equals > stop) {
      if (!Trim(text.substr(start, stop - start)).empty()) {
        throw RuntimeError(velmar::kInvalidProcedureCall,
                           "La cadena de conexión no es válida: «" + Trim(text.substr(start, stop - start)) +
                               "» no tiene la forma nombre=valor.",
                           std::string(kSource), velmar::TextSpan{start, stop - start});
      }
      position = stop + 1;
      continue;
    }
    const std::string key = Trim(text.substr(start, equals - start));
    position = equals + 1;
    while (position < text.size() && text[position] == ' ') ++position;
    std::string value;
    if (position < text.size() && (text[position] == '\'' || text[position] == '"')) {
      value = ReadQuoted(text, position);
      const std::size_t end = std::min(text.find(';', position), text.size());
      if (!Trim(text.substr(position, end - position)).empty()) {
        throw RuntimeError(
            velmar::kInvalidProcedureCall,
            "La cadena de conexión no es válida: sobra texto detrás del valor de «" + key + "».",
            std::string(kSource), velmar::TextSpan{position, end - position});
      }
      position = end + 1;
    } else {
      const std::size_t end = std::min(text.find(';', position), text.size());
      value = Trim(text.substr(position, end - position));
      position = end + 1;
    }
    Set(key, value);
  }
}

std::optional<std::string> ConnectionText::Find(std::string_view key) const {
  for (const auto& [name, value] : entries_) {
    if (EqualText(name, key)) return value;
  }
  return std::nullopt;
}

std::string ConnectionText::Value(std::string_view key) const {
  return Find(key).value_or(std::string());
}

bool ConnectionText::Flag(std::string_view key) const {
  const std::string value = Value(key);
  for (const std::string_view yes : {"True", "Yes", "Verdadero", "Sí", "-1", "1"}) {
    if (EqualText(value, yes)) return true;
  }
  return false;
}

std::string ConnectionText::DataSource() const {
  std::string path = Value(kDataSourceKey);
  if (path.empty()) {
    throw RuntimeError(
        velmar::kInvalidProcedureCall,
        "La cadena de conexión no dice qué base de datos abrir: falta «Data Source=» con la ruta del "
        "fichero.",
        std::string(kSource));
  }
  return path;
}

ConnectionText& ConnectionText::Set(std::string_view key, std::string_view value) {
  for (auto& [name, held] : entries_) {
    if (EqualText(name, key)) {
      held = value;
      return *this;
    }
  }
  entries_.emplace_back(key, value);
  return *this;
}

std::string ConnectionText::Text() const {
  std::string text;
  for (const auto& [name, value] : entries_) {
    if (!text.empty()) text += ';';
    text += name + '=' + Quoted(value);
  }
  return text;
}

}  // namespace ADODB
