#include "sample/TemplateExamples.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/ado/BulkInsert.h"
#include "sample/Catalogue.h"
#include "sample/RowWriter.h"

namespace velmar::sample {
namespace {

struct ExampleRow {
  std::string_view field;  ///< internal name
  int order;               ///< place in the sort order, -1 for none
  std::string_view filter;
};

constexpr std::array<ExampleRow, 3> kRows = {{
    {"colaboradores.apellido1", 0, ""},
    {"colaboradores.nombre", 1, ""},
    {"colaboradores.provincia", -1, "{Provincia de residencia} = `Madrid´"},
}};

}  // namespace

void WriteTemplateExamples(ADODB::Connection& reports) {
  ADODB::BulkInsert rows(
      reports, "ExportacionPlantillasTEMP",
      {"Nombre", "CodUsuario", "LiteralTabla", "IDCampo", "LiteralCampo", "OrdenCampo", "FiltroCampo"});
  for (const ExampleRow& row : kRows) {
    const auto field = std::find_if(Catalogue().begin(), Catalogue().end(), [&](const CatalogueField& known) {
      return known.internalName == row.field;
    });
    WriteRow(rows, std::string_view("Socios de Madrid"), 1, field->node, field->id, field->literal, row.order,
             row.filter);
  }
}

}  // namespace velmar::sample
