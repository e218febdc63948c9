#include "wizard/frmDatos.h"

#include <gmock/gmock.h>

#include "platform/ado/Connection.h"
#include "wizard/OpenWizard.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Tails are stored backwards; one that begins with X cannot be read.
class BackwardsCodec : public cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override { tramo = {tramo.rbegin(), tramo.rend()}; }
  void DecodificarTramo(std::string& tramo) override {
    if (tramo.starts_with("X")) throw RuntimeError(7001, "tramo ilegible", "codec");
    CodificarTramo(tramo);
  }
};

class frmDatosTest : public testing::OpenWizard {
 protected:
  frmDatosTest() {
    for (const char* statement :
         {"CREATE TABLE Recibos (Importe CURRENCY, Eliminado BIT)",
          "CREATE TABLE Modelo182Hacienda (NIF TEXT(20))",
          "CREATE TABLE Bancos (IDBanco LONG, Numero TEXT(4))",
          "CREATE TABLE Sucursales (IDSucursal LONG, CodBanco LONG, Codigo TEXT(4))",
          "CREATE TABLE Cuentas (CodSucursal LONG, DC TEXT(2), Numero TEXT(20), Eliminado BIT)",
          "INSERT INTO Bancos VALUES (1, '0049')", "INSERT INTO Bancos VALUES (2, '2100')",
          "INSERT INTO Sucursales VALUES (1, 2, '0813')", "INSERT INTO Sucursales VALUES (2, 1, '1500')",
          "INSERT INTO Recibos VALUES (9, False)", "INSERT INTO Recibos VALUES (10.5, False)"}) {
      office.host->main->Execute(statement);
    }
    com::ClassRegistry::Instance().Register(
        {"Prueba.Codec", kCuentaCodecClassId, [] { return std::make_shared<BackwardsCodec>(); }});
  }
  ~frmDatosTest() override { com::ClassRegistry::Instance().Unregister(kCuentaCodecClassId); }

  void AddAccount(const std::string& number, const std::string& branch = "2") {
    office.host->main->Execute("INSERT INTO Cuentas VALUES (" + branch + ", '57', '" + number + "', False)");
  }
  /// Opens the dialog for a field and closes it by its frame. What its list shows.
  std::vector<std::string> Fill(const char* node, const char* literal) {
    std::vector<std::string> items;
    office.toolkit.WhenShown("frmDatos", [&](toolkit::Form& shown) {
      const auto& dialog = dynamic_cast<frmDatos&>(shown);
      // However the fill went, the dialog can be used and shows its list.
      EXPECT_TRUE(dialog.Enabled() && !dialog.prgDatos.Visible() && dialog.lstDatos.Visible());
      EXPECT_EQ(office.toolkit.MousePointer(), 0);
      for (long i = 0; i < dialog.lstDatos.ListCount(); ++i) items.push_back(dialog.lstDatos.List(i));
      EXPECT_TRUE(shown.UserClose());
    });
    form->cmdAgregarQuitar(Controls::kTakeAll).UserClick();
    Add(node, {literal});
    EXPECT_TRUE(form->cmdVerDatos.UserClick());
    return items;
  }
  /// What the host was told, but for the making of its own objects.
  std::vector<std::string> Reported() {
    auto calls = office.log->Take();
    std::erase_if(calls, [](const std::string& call) { return !call.starts_with("VerError "); });
    return calls;
  }
};

TEST_F(frmDatosTest, DialogComesUpWithoutItsIconAndTakesNoActionWhileItFills) {
  office.host->icon = "no/hay.ico";
  bool tried = false;
  office.toolkit.Loop().Post([&] {
    tried = true;
    EXPECT_FALSE(office.toolkit.ActiveForm()->UserClose());
    EXPECT_EQ(office.toolkit.MousePointer(), 11);
  });
  EXPECT_THAT(Fill(kRec, "Importe"), ElementsAre("10.5", "9")) << "in the order of texts";
  EXPECT_TRUE(tried);
  EXPECT_THAT(Reported(),
              ElementsAre(::testing::StartsWith("VerError Form_Load() frmDatos VelmarExportacion ")));
}

TEST_F(frmDatosTest, TellsWhenThereIsNothingToList) {
  const std::string none =
      "+64 ¡No existen valores para el campo en la bd,\rpor favor, introduzca un valor manualmente!";
  const std::string failed =
      "+48 ¡No se pueden mostrar valores para el campo,\rpor favor, introduzca un valor manualmente!";
  EXPECT_THAT(Fill(office.kMod, "Clave"), IsEmpty());
  office.host->main->Execute("DROP TABLE Modelo182Hacienda");
  EXPECT_THAT(Fill(office.kMod, "Clave"), IsEmpty());
  EXPECT_THAT(Fill(kCol, "Árbol"), IsEmpty()) << "a field of which no list is known";
  EXPECT_THAT(office.Boxes(), ElementsAre(none, failed, failed));
  EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(frmDatosTest, AccountsAreShownDecodedAndARowThatFailsIsLeftOutAndToldOnce) {
  for (const char* number : {"987", "X1", "", "X2"}) AddAccount(number);
  AddAccount("123456789012", "1");
  EXPECT_THAT(Fill(office.kDon, "Tipo"),
              ElementsAre("0049150057", "0049150057789", "2100081357210987654321"));
  EXPECT_THAT(Reported(), ElementsAre("VerError fillValorCampos frmDatos VelmarExportacion 7001"));
  com::ClassRegistry::Instance().Unregister(kCuentaCodecClassId);
  EXPECT_THAT(Fill(office.kDon, "Tipo"), IsEmpty());
  EXPECT_THAT(Reported(), ElementsAre("VerError fillValorCampos frmDatos VelmarExportacion 429"));
}

TEST_F(frmDatosTest, RecordsetThatFailsEndsTheListAndIsToldOnce) {
  for (const char* number : {"987", "654"}) AddAccount(number);
  // In the turn of the first row the host closes its connection, and the recordset with it.
  auto& loop = office.toolkit.Loop();
  loop.Post([&] { loop.Post([&] { office.host->main->Close(); }); });
  EXPECT_THAT(Fill(office.kDon, "Tipo"), ElementsAre("0049150057789"));
  EXPECT_THAT(Reported(), ElementsAre("VerError fillValorCampos frmDatos VelmarExportacion 3704"));
}

}  // namespace
}  // namespace velmar::wizard
