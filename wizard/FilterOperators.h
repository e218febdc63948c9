#pragma once

#include <array>
#include <string>
#include <string_view>

namespace velmar::wizard {

/// The pieces of the filter language that the list of operators offers, in the order of the list.
inline constexpr std::array<std::string_view, 18> kFilterOperators = {"Comience por",
                                                                      "Que contenga",
                                                                      "Acabe en",
                                                                      "Entre",
                                                                      "Igual a uno de",
                                                                      "`valor1\u00B4",
                                                                      "Y",
                                                                      "O",
                                                                      "(",
                                                                      ")",
                                                                      "=",
                                                                      "<",
                                                                      ">",
                                                                      "<=",
                                                                      ">=",
                                                                      "<>",
                                                                      "`",
                                                                      "\u00B4"};

/// What the operator writes into a filter, with the blanks around it and placeholders for its values. The
/// connectors come without blanks. A text that is no operator comes back between two blanks.
std::string OperatorText(std::string_view item);

}  // namespace velmar::wizard
