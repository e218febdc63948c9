#include "query/FilterBalance.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "query/FilterSyntax.h"

namespace velmar {

namespace {

std::size_t Count(std::string_view text, std::string_view character) {
  std::size_t count = 0;
  for (std::size_t at = text.find(character); at != text.npos;
       at = text.find(character, at + character.size())) {
    ++count;
  }
  return count;
}

constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kPairs = {{
    {"[", "]"},
    {"(", ")"},
    {kOpeningMark, kClosingMark},
    {"{", "}"},
}};

}  // namespace

bool CaracteresEquilibrados(std::string_view apertura, std::string_view cierre, std::string_view texto) {
  return Count(texto, apertura) == Count(texto, cierre);
}

std::optional<std::string> ValidarFiltro(std::string_view filtro) {
  const bool balanced = std::all_of(kPairs.begin(), kPairs.end(), [&](const auto& pair) {
    return CaracteresEquilibrados(pair.first, pair.second, filtro);
  });
  if (balanced) return std::nullopt;
  return "¡Existen errores en el filtro, por favor compruebe que existe \r"
         "el mismo nº de caracteres de apertura como de cierre!";
}

}  // namespace velmar
