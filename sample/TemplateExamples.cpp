#include "sample/TemplateExamples.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "platform/ado/BulkInsert.h"
#include "sample/Catalogue.h"
#include "sample/RowWriter.h"

namespace velmar::sample {
namespace {

constexpr int kUnsorted = -1;

struct ExampleRow {
  std::string_view field;   ///< internal name
  int order = kUnsorted;    ///< place in the sort order
  std::string filter = {};  ///< in the filter language
};

struct Example {
  std::string_view name;
  std::vector<ExampleRow> rows;
};

std::vector<Example> Examples(std::chrono::year_month_day day) {
  const std::string lastYear = std::to_string(static_cast<int>(day.year()) - 1);
  return {
      {"Socios de Madrid",
       {{"colaboradores.apellido1", 0},
        {"colaboradores.nombre", 1},
        {"colaboradores.provincia", kUnsorted, "{Provincia de residencia} = `Madrid´"}}},
      {"Felicitaciones",
       {{"colaboradores.nombre", 1, "{Nombre o razón social} [Comience por] `M´"},
        {"colaboradores.apellido1"},
        {"colaboradores.sexo"},
        {"colaboradores.juridico", kUnsorted, "{Tipo de entidad} = `Física´"},
        {"colaboradores.fechanacimiento", 0},
        {"colaboradores.telefono2"}}},
      {"Donativos periódicos",
       {{"colaboradores.idcolaborador"},
        {"colaboradores.apellido1", 0},
        {"colaboradores.nombre", 1},
        {"donativos.importe", kUnsorted, "{Importe del donativo} >= `20´"},
        {"donativos.tipoperiodo", kUnsorted, "{Periodicidad} [Igual a uno de] (`Mensual´, `Trimestral´)"},
        {"donativos.cuenta"}}},
      {"Recibos del año pasado",
       {{"colaboradores.idcolaborador"},
        {"colaboradores.nif"},
        {"recibos.fechaemision", 0,
         "{Fecha de emisión} [Entre] `01/01/" + lastYear + "´ [Y] `31/12/" + lastYear + "´"},
        {"recibos.fechacobro"},
        {"recibos.importe"},
        {"cobros.textorecibo"},
        {"recibos.cuenta"}}},
      {"Remesas enviadas",
       {{"remesas.idremesa", 0},
        {"remesas.codemisor"},
        {"remesas.recibosbanco", kUnsorted, "{Recibos enviados al banco} > `0´"},
        {"remesas.totalbanco"}}},
      {"Modelo 182",
       {{"modelo182hacienda.nombre", 0},
        {"modelo182hacienda.nif"},
        {"modelo182hacienda.provincia"},
        {"modelo182hacienda.tipodonativo"},
        {"modelo182hacienda.importe"}}},
  };
}

const CatalogueField& FieldOf(std::string_view internalName) {
  const auto& fields = Catalogue();
  const auto field = std::find_if(fields.begin(), fields.end(), [&](const CatalogueField& known) {
    return known.internalName == internalName;
  });
  if (field == fields.end()) throw std::out_of_range(std::string(internalName));
  return *field;
}

}  // namespace

void WriteTemplateExamples(ADODB::Connection& connection, const std::string& table,
                           std::chrono::year_month_day day) {
  connection.Execute("CREATE TABLE " + table +
                     " (Nombre TEXT(150) NOT NULL, CodUsuario LONG NOT NULL, LiteralTabla TEXT(40) NOT NULL, "
                     "IDCampo SHORT NOT NULL, LiteralCampo TEXT(60) NOT NULL, OrdenCampo SHORT NOT NULL, "
                     "FiltroCampo MEMO NOT NULL)");
  ADODB::BulkInsert rows(
      connection, table,
      {"Nombre", "CodUsuario", "LiteralTabla", "IDCampo", "LiteralCampo", "OrdenCampo", "FiltroCampo"});
  for (const Example& example : Examples(day)) {
    for (const ExampleRow& row : example.rows) {
      const CatalogueField& field = FieldOf(row.field);
      WriteRow(rows, example.name, kExampleUser, field.node, field.id, field.literal, row.order, row.filter);
    }
  }
}

}  // namespace velmar::sample
