#include "sample/host/SampleHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/cPrincipal.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "sample/AccountCodec.h"
#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"
#include "sample/host/SampleClasses.h"
#include "wizard/SelectionGrid.h"
#include "wizard/frmExportacion.h"

namespace velmar::sample {
namespace {

using ::testing::HasSubstr;
using Controls = wizard::ExportControls;
using Kind = toolkit::Record::Kind;
using Rows = std::vector<std::vector<std::string>>;

/// The sample office with passwords on both databases, and its user.
class SampleOffice : public ::testing::Test, public ComponentSite {
 protected:
  SampleOffice() {
    auto options = OptionsFor(folder_.Path(), 400);
    options.mainPassword = "clave ñ";
    options.reportsPassword = "o;tra";
    DatabaseGenerator(options).Run();
    SampleHost::Settings settings;
    settings.folder = folder_.Path() + "/";
    settings.mainPassword = options.mainPassword;
    settings.reportsPassword = options.reportsPassword;
    host_ = std::make_shared<SampleHost>(settings);
    RegisterSampleClasses(toolkit_, settings.title);
    cPrincipal().SetSite(this);
  }
  ~SampleOffice() override { cPrincipal().SetSite(nullptr); }

  toolkit::Toolkit& Surroundings() override { return toolkit_; }

  /// Opens the wizard; the user does this in it.
  void OpenWizard(const std::function<void(wizard::frmExportacion&)>& user) {
    toolkit_.WhenShown("frmExportacion",
                       [user](toolkit::Form& form) { user(dynamic_cast<wizard::frmExportacion&>(form)); });
    cPrincipal().PasarDatos(host_);
  }

  static void Add(wizard::frmExportacion& form, const std::string& node,
                  const std::vector<std::string>& literals) {
    ASSERT_TRUE(form.cboExportar.UserChoose(form.cboExportar.FindStringExact(node))) << node;
    for (const std::string& literal : literals) {
      ASSERT_TRUE(form.lstDisponibles.UserDoubleClick(form.lstDisponibles.FindStringExact(literal)))
          << literal;
    }
  }
  void Filter(wizard::frmExportacion& form, long row, const std::string& filter) {
    ASSERT_TRUE(form.msgSeleccionados.UserClick(row));
    ASSERT_TRUE(form.txtFiltro.UserPaste(filter));
    toolkit_.Answer(toolkit::kYes, "asignar el filtro");
    ASSERT_TRUE(form.cmdFiltro(Controls::kFilterAssign).UserClick());
    ASSERT_EQ(form.msgSeleccionados.TextMatrix(row, wizard::kFilterColumn), filter);
  }
  std::vector<std::string> Boxes() const {
    std::vector<std::string> boxes;
    for (const auto& record : toolkit_.Records(Kind::kBox)) boxes.push_back(record.text);
    return boxes;
  }

  TestFolder folder_;
  toolkit::ScriptedToolkit toolkit_;
  std::shared_ptr<SampleHost> host_;
};

TEST_F(SampleOffice, ExportsAFilteredSelectionToAWorkbook) {
  const std::string file = folder_ / "Socios de Madrid.xls";
  OpenWizard([&](wizard::frmExportacion& form) {
    EXPECT_EQ(form.cboExportar.ListCount(), 5) << "the catalogue has come over";
    Add(form, "(COL) Colaboradores",
        {"Código de colaborador", "Primer apellido", "Provincia de residencia", "Cuenta bancaria"});
    Filter(form, 3, "{Provincia de residencia} [Comience por] `MADR´");
    toolkit_.AnswerMenu("Agregar al 'orden'");
    form.msgSeleccionados.UserClick(1);
    form.msgSeleccionados.UserMouseUp(2, 0, 0, 0);
    toolkit_.AnswerFile(file);
    EXPECT_TRUE(form.cmdExportar(Controls::kExport).UserClick());
    EXPECT_FALSE(form.Loaded()) << "a finished export closes the window";
  });
  EXPECT_THAT(Boxes().back(), HasSubstr("ha terminado correctamente"));
  EXPECT_EQ(host_->conGestion()->State(), ADODB::kStateClosed);
  EXPECT_EQ(host_->coninformes()->State(), ADODB::kStateClosed);

  Rows expected = {{"IDColaborador", "Apellido1", "Provincia", "CuentaColaborador"}};
  host_->conGestion()->Open();
  const auto rows = host_->conGestion()->Execute(
      "SELECT DISTINCT c.IDColaborador, c.Apellido1, p.Nombre, b.Numero, s.Codigo, q.DC, q.Numero "
      "FROM Colaboradores AS c, Provincias AS p, Colaboradores_Cuentas AS k, Cuentas AS q, Sucursales AS s, "
      "Bancos AS b WHERE c.CodProvincia = p.IDProvincia AND c.IDColaborador = k.CodColaborador "
      "AND k.CodCuenta = q.IDCuenta AND q.CodSucursal = s.IDSucursal AND s.CodBanco = b.IDBanco "
      "AND p.Nombre = 'Madrid' ORDER BY c.IDColaborador");
  for (; !rows->Eof(); rows->MoveNext()) {
    const auto value = [&](long column) { return rows->Fields(column).Value().TextOrEmpty(); };
    expected.push_back(
        {value(0), value(1), value(2), value(3) + value(4) + value(5) + AccountCodec::Decode(value(6))});
  }
  EXPECT_GT(expected.size(), 10U);
  const auto sheets = ReadWorkbook(file);
  ASSERT_EQ(sheets.size(), 1U);
  EXPECT_EQ(sheets[0], expected);
}

TEST_F(SampleOffice, RefusedFilterAndCancelledDialogLeaveTheWindowAsItWas) {
  OpenWizard([&](wizard::frmExportacion& form) {
    Add(form, "(COL) Colaboradores", {"Primer apellido"});
    Filter(form, 1, "{Primer apellido} [Empieza] `G´");
    toolkit_.AnswerFile(folder_ / "Nada.xls");
    EXPECT_TRUE(form.cmdExportar(Controls::kExport).UserClick());
    EXPECT_TRUE(form.Loaded());
    toolkit_.AnswerFile(std::nullopt);
    EXPECT_TRUE(form.cmdExportar(Controls::kExport).UserClick());
    EXPECT_EQ(form.msgSeleccionados.Rows(), 2);
    form.UserClose();
  });
  EXPECT_THAT(Boxes(), ::testing::Contains(HasSubstr("GenerarSQLWHERE ()")));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "Nada.xls"));
  EXPECT_EQ(host_->conGestion()->State(), ADODB::kStateClosed);
}

}  // namespace
}  // namespace velmar::sample
