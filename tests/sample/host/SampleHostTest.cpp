#include "sample/host/SampleHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/cPrincipal.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "sample/AccountCodec.h"
#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"
#include "sample/host/SampleClasses.h"
#include "wizard/frmExportacion.h"

namespace velmar::sample {
namespace {

using Controls = wizard::ExportControls;

struct Site : ComponentSite {
  Site() { cPrincipal().SetSite(this); }
  ~Site() override { cPrincipal().SetSite(nullptr); }
  toolkit::Toolkit& Surroundings() override { return user; }

  toolkit::ScriptedToolkit user;
};

/// The office has passwords on both databases, and its user looks for an account.
TEST(SampleHostTest, ItsUserExportsAFilteredSelectionToAWorkbook) {
  const files::TemporaryFolder folder;
  auto options = OptionsFor(folder.Path(), 40);
  options.mainPassword = "clave ñ";
  options.reportsPassword = "o;tra";
  DatabaseGenerator(options).Run();
  SampleHost::Settings settings;
  settings.folder = folder.Path() + "/";
  settings.mainPassword = options.mainPassword;
  settings.reportsPassword = options.reportsPassword;
  const auto host = std::make_shared<SampleHost>(settings);
  EXPECT_EQ(host->RutaApp(), folder.Path());
  host->conGestion()->Open();
  const auto row = host->conGestion()->Execute(
      "SELECT c.IDColaborador, c.Apellido1, b.Numero & s.Codigo & q.DC, q.Numero FROM Colaboradores AS c, "
      "Colaboradores_Cuentas AS k, Cuentas AS q, Sucursales AS s, Bancos AS b WHERE c.IDColaborador = "
      "k.CodColaborador AND k.CodCuenta = q.IDCuenta AND q.CodSucursal = s.IDSucursal AND s.CodBanco = "
      "b.IDBanco");
  const auto value = [&](long column) { return row->Fields(column).Value().AsText(); };
  const std::string account = value(2) + AccountCodec::Decode(value(3));
  const std::vector<std::string> expected = {value(0), value(1), account};
  host->conGestion()->Close();

  Site site;
  RegisterSampleClasses(site.user, settings.title);
  site.user.AlwaysAnswer(toolkit::kYes, "asignar el filtro");
  site.user.AnswerFile(folder / "Una cuenta.xls");
  site.user.WhenShown("frmExportacion", [&](toolkit::Form& shown) {
    auto& form = dynamic_cast<wizard::frmExportacion&>(shown);
    form.cboExportar.UserChoose(form.cboExportar.FindStringExact("(COL) Colaboradores"));
    for (const char* literal : {"Código de colaborador", "Primer apellido", "Cuenta bancaria"})
      form.lstDisponibles.UserDoubleClick(form.lstDisponibles.FindStringExact(literal));
    form.msgSeleccionados.UserClick(3);
    form.txtFiltro.UserPaste("{Cuenta bancaria} = `" + account + "´");
    form.cmdFiltro(Controls::kFilterAssign).UserClick();
    form.cmdExportar(Controls::kExport).UserClick();
    EXPECT_FALSE(form.Loaded()) << "a finished export closes the window";
  });
  cPrincipal().PasarDatos(host);
  EXPECT_EQ(ReadWorkbook(folder / "Una cuenta.xls").at(0).at(1), expected);
  EXPECT_EQ(host->conGestion()->State() + host->coninformes()->State(), ADODB::kStateClosed);
}

}  // namespace
}  // namespace velmar::sample
