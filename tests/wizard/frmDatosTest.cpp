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
  // The host closes its connection, and the recordset with it, in the turn of the statement or of the first
  // row.
  auto& loop = office.toolkit.Loop();
  const auto close = [&] { office.host->main->Close(); };
  const std::string told = "VerError fillValorCampos frmDatos VelmarExportacion 3704";
  loop.Post(close);
  EXPECT_THAT(Fill(office.kDon, "Tipo"), IsEmpty());
  EXPECT_THAT(Reported(), ElementsAre(told));
  office.host->main->Open();
  loop.Post([&] { loop.Post(close); });
  EXPECT_THAT(Fill(office.kDon, "Tipo"), ElementsAre("0049150057789"));
  EXPECT_THAT(Reported(), ElementsAre(told));
}

TEST_F(frmDatosTest, AcceptedValueGoesToTheCaretOrOverTheSelectionOfTheFilter) {
  Add(kRec, {"Importe"});
  const auto accept = [](frmDatos& dialog) {
    EXPECT_TRUE(dialog.cmdDatos(frmDatos::kAccept).UserClick());
    return !dialog.Visible();
  };
  const struct {
    long start;
    long length;
    std::function<void(frmDatos&)> act;
    std::string filter;
    long caret;
  } cases[] = {
      {10, 2, [&](frmDatos& dialog) { EXPECT_TRUE(accept(dialog)) << "an empty box"; }, "{ñ} < `v1´ [Y]", 10},
      {7, 2,
       [&](frmDatos& dialog) {
         EXPECT_TRUE(dialog.txtDatos.UserType("ó 5"));
         EXPECT_TRUE(accept(dialog));
       },
       "{ñ} < `ó 5´ [Y]", 15},
      {7, 0,
       [&](frmDatos& dialog) {
         EXPECT_TRUE(dialog.optDatos(frmDatos::kPicked).UserClick());
         EXPECT_FALSE(accept(dialog)) << "nothing is chosen";
         EXPECT_TRUE(dialog.lstDatos.UserClick(1));
         EXPECT_TRUE(accept(dialog));
       },
       "{ñ} < `9v1´ [Y]", 15},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.filter);
    form->txtFiltro.Text("{ñ} < `v1´ [Y]");
    EXPECT_TRUE(form->txtFiltro.UserSetCaret(test.start, test.length));
    office.toolkit.WhenShown("frmDatos",
                             [&](toolkit::Form& shown) { test.act(dynamic_cast<frmDatos&>(shown)); });
    EXPECT_TRUE(form->cmdVerDatos.UserClick());
    EXPECT_EQ(form->txtFiltro.Text(), test.filter);
    EXPECT_EQ(form->txtFiltro.SelStart(), test.caret);
  }
  EXPECT_THAT(office.Boxes(), ElementsAre("+48 ¡Debe seleccionar un elemento de la lista!"));
}

}  // namespace
}  // namespace velmar::wizard
