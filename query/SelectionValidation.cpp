#include "query/SelectionValidation.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "catalogue/FieldLookup.h"
#include "query/DistinctList.h"
#include "query/Nodes.h"
#include "query/SelectionTexts.h"

namespace velmar {

namespace {

struct Pair {
  std::string_view one;
  std::string_view other;
};

constexpr std::array kRefusedPairs = {
    Pair{kModelo182, kRecibos},
    Pair{kDonativos, kModelo182},
    Pair{kRemesas, kDonativos},
    Pair{kRemesas, kModelo182},
};

}  // namespace

bool ValidarTablas(const Selection& selection, const std::function<void()>& doEvents) {
  const DistinctList nodes = CollectNodes(selection);
  if (doEvents) doEvents();
  return std::none_of(kRefusedPairs.begin(), kRefusedPairs.end(),
                      [&](const Pair& pair) { return nodes.Holds(pair.one) && nodes.Holds(pair.other); });
}

bool ValidarLiterales(const Selection& selection, const Collection<cCampos>& mcolCampos) {
  DistinctList literals;
  return std::all_of(selection.rows.begin(), selection.rows.end(), [&](const Selection::Row& row) {
    return literals.Add(FindField(mcolCampos, row.idCampo).LiteralCampo());
  });
}

std::optional<std::string> ValidarExportacion(const Selection& selection,
                                              const Collection<cCampos>& mcolCampos,
                                              const std::function<void()>& doEvents) {
  if (selection.rows.empty()) return "¡Debe existir por lo menos un campo en la rejilla para poder exportar!";
  if (!ValidarTablas(selection, doEvents)) {
    return "¡Ha seleccionado campos de dos tablas que no pueden ser relacionadas!\r"
           "Por favor, seleccione campos validos para realizar la exportación.";
  }
  if (!ValidarLiterales(selection, mcolCampos)) {
    return "¡Ha seleccionado campos de dos tablas diferentes pero que tienen el mismo literal!\r"
           "Por favor, seleccione campos validos para realizar la exportación.";
  }
  return std::nullopt;
}

}  // namespace velmar
