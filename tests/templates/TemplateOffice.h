#pragma once

#include <string>
#include <vector>

#include "host/interfaces/modVelmarExportacion.h"
#include "platform/ado/Recordset.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "templates/TemplateStore.h"
#include "wizard/WizardOffice.h"

namespace velmar::testing {

/// An open main database, and the two controls of a wizard.
class TemplateOffice : public WizardOffice {
 public:
  TemplateOffice() {
    host->main->Open();
    objHost = host;
    grid.Cols(3);
    grid.Rows(2);
    grid.FixedRows(1);
    grid.Rows(1);
  }
  ~TemplateOffice() { objHost = nullptr; }

  templates::TemplateStore Store(std::int32_t user = 7) const { return {host->main, user}; }
  /// A new template.
  void Save(const std::string& name, const templates::TemplateContent& content, std::int32_t user = 7) const {
    Store(user).Save(name, content, templates::TemplateStore::Existing::kNone);
  }

  /// All rows of the table, "name|user|node|number|literal|order|filter|", in the order of insertion.
  std::vector<std::string> Table() const {
    const auto rows = host->main->Execute(
        "SELECT Nombre, CodUsuario, LiteralTabla, IDCampo, LiteralCampo, OrdenCampo, FiltroCampo FROM "
        "ExportacionPlantillas");
    std::vector<std::string> lines;
    for (; !rows->Eof(); rows->MoveNext()) {
      std::string& line = lines.emplace_back();
      for (long i = 0; i < 7; ++i) line += rows->Fields(i).Value().AsText() + "|";
    }
    return lines;
  }

  controls::Grid grid{"msgSeleccionados"};
  controls::ListBox order{"lstOrden"};
};

/// Three fields whose grid order is neither that of their numbers nor the sort order.
inline templates::TemplateContent Members() {
  return {{{"(COL) Colaboradores", "Provincia", "{Provincia} = `\"Á\"´ \\ [x] %", 11},
           {"(COL) Colaboradores", "Apellido", "", 3},
           {"(REC) Recibos", "Importe", "{Importe} > `10.5´", 29}},
          {{"(rec) importe", 29}, {"(DON) Ajeno", 20}, {"(COL) Apellido", 3}}};
}

}  // namespace velmar::testing
