#include "sample/window/OfficeSummary.h"

#include "platform/ado/Recordset.h"
#include "sample/SampleFiles.h"

namespace velmar::sample {

OfficeSummary OfficeSummary::Read(const std::string& folder, long user) {
  const struct {
    const char* label;
    std::string source;
  } kinds[] = {
      {"Colaboradores", "Colaboradores WHERE Eliminado = 0"},
      {"Donativos y suscripciones", "Donativos WHERE Eliminado = 0"},
      {"Recibos", "Recibos WHERE Eliminado = 0"},
      {"Cobros", "Cobros"},
      {"Remesas", "Remesas WHERE Eliminado = 0"},
      {"Plantillas de exportación", "(SELECT DISTINCT Nombre FROM ExportacionPlantillas WHERE CodUsuario = " +
                                        std::to_string(user) + ") AS T"},
  };
  const auto main = OpenDatabase(PathIn(folder, kMainFile));
  OfficeSummary summary;
  for (const auto& kind : kinds) {
    const auto count = main->Execute("SELECT Count(*) AS Filas FROM " + kind.source);
    summary.counts.push_back({kind.label, count->Fields("Filas").Value().AsLong()});
    count->Close();
  }
  main->Close();
  return summary;
}

}  // namespace velmar::sample
