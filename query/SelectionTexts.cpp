#include "query/SelectionTexts.h"

#include <algorithm>

#include "catalogue/FieldLookup.h"
#include "platform/text/Search.h"

namespace velmar {

DistinctList CollectNodes(const Selection& selection) {
  DistinctList nodes;
  for (const Selection::Row& row : selection.rows) nodes.Add(row.tabla);
  return nodes;
}

std::string ObtenerStrTablasSeleccionadas(const Selection& selection) {
  std::vector<std::string> nodes = text::Split(CollectNodes(selection).Joined(), ", ");
  OrdenarTextos(nodes);
  return text::Join(nodes, ", ");
}

std::string ObtenerStrCamposSeleccionados(const Selection& selection, const Collection<cCampos>& mcolCampos,
                                          const FailureReport& report) {
  std::string result;
  RunReporting(report, "ObtenerStrCamposSeleccionados ()", [&] {
    DistinctList names;
    for (const Selection::Row& row : selection.rows) {
      names.Add(FindField(mcolCampos, row.idCampo).NombreInternoCampo());
    }
    result = names.Joined();
  });
  return result;
}

// The order of UTF-8 bytes is the order of code points.
void OrdenarTextos(std::vector<std::string>& textos) {
  std::sort(textos.begin(), textos.end());
}

}  // namespace velmar
