#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// True if the text holds the one character as often as the other. Their order plays no part.
bool CaracteresEquilibrados(std::string_view apertura, std::string_view cierre, std::string_view texto);

/// Tells whether the four pairs of a filter balance: brackets, parentheses, value marks and braces. Nothing
/// if they do, else the text of the warning, to be shown with a beep as an exclamation.
std::optional<std::string> ValidarFiltro(std::string_view filtro);

}  // namespace velmar
