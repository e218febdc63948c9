#pragma once

#include <string_view>

namespace velmar {

// The nodes that a catalogue may hold, by their display names.
inline constexpr std::string_view kColaboradores = "(COL) Colaboradores";
inline constexpr std::string_view kDonativos = "(DON) Donativos/Suscripciones";
inline constexpr std::string_view kRecibos = "(REC) Recibos";
inline constexpr std::string_view kRemesas = "(REM) Remesas";
inline constexpr std::string_view kModelo182 = "(MOD) Modelo182";

}  // namespace velmar
