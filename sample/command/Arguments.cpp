#include "sample/command/Arguments.h"

#include <algorithm>
#include <charconv>

#include "sample/command/UsageError.h"

namespace velmar::sample {

Arguments::Arguments(std::span<const std::string> words, std::span<const Option> known) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (!word.starts_with("--"))
      throw UsageError("No se esperaba '" + word + "': las opciones empiezan por '--'.");
    const std::size_t sign = word.find('=');
    const std::string name = word.substr(0, sign);
    const auto option = std::find_if(known.begin(), known.end(),
                                     [&](const Option& candidate) { return candidate.name == name; });
    if (option == known.end()) throw UsageError("La opción '" + name + "' no existe en esta orden.");

    std::string value;
    if (option->isSwitch) {
      if (sign != std::string::npos) throw UsageError("La opción '" + name + "' no lleva valor.");
    } else if (sign != std::string::npos) {
      value = word.substr(sign + 1);
    } else if (i + 1 < words.size()) {
      value = words[++i];
    } else {
      throw UsageError("Falta el valor de la opción '" + name + "'.");
    }
    if (!values_.emplace(name, value).second) throw UsageError("La opción '" + name + "' está repetida.");
  }
}

bool Arguments::Has(std::string_view name) const {
  return values_.find(name) != values_.end();
}

std::optional<std::string> Arguments::Find(std::string_view name) const {
  const auto found = values_.find(name);
  return found == values_.end() ? std::nullopt : std::optional(found->second);
}

std::string Arguments::Require(std::string_view name) const {
  std::string value = Find(name).value_or("");
  if (value.empty()) throw UsageError("Falta la opción '" + std::string(name) + "'.");
  return value;
}

long long Arguments::Number(std::string_view name, long long byDefault, long long low, long long high) const {
  const std::optional<std::string> text = Find(name);
  if (!text) return byDefault;
  long long number = 0;
  const char* end = text->data() + text->size();
  const auto [stop, failure] = std::from_chars(text->data(), end, number);
  if (failure != std::errc() || stop != end || number < low || number > high) {
    throw UsageError("La opción '" + std::string(name) + "' pide un número entero entre " +
                     std::to_string(low) + " y " + std::to_string(high) + "; se ha escrito '" + *text + "'.");
  }
  return number;
}

}  // namespace velmar::sample
