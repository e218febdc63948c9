#include "wizard/frmDatos.h"

#include <gmock/gmock.h>

#include "catalogue/FieldLookup.h"
#include "host/interfaces/HostObjects.h"
#include "host/interfaces/TestDatabases.h"
#include "host/interfaces/modVelmarExportacion.h"
#include "platform/ado/BulkInsert.h"
#include "platform/com/ClassRegistry.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "wizard/RecordingHost.h"

namespace velmar::wizard {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Kind = toolkit::Record::Kind;

constexpr com::Guid kApiClass{0x0A51B1C2, 0x7713, 0x4AA0, {0x81, 0x22, 0x5E, 0x09, 0x6C, 0x4D, 0xF0, 0x13}};

/// Tails are stored backwards; one that begins with X cannot be read.
class BackwardsCodec : public cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override { tramo = {tramo.rbegin(), tramo.rend()}; }
  void DecodificarTramo(std::string& tramo) override {
    if (tramo.starts_with("X")) throw RuntimeError(7001, "tramo ilegible", "codec");
    CodificarTramo(tramo);
  }
};

class frmDatosTest : public ::testing::Test {
 protected:
  enum : std::int16_t { kCp = 1, kImporte, kCuenta, kNif182, kUnknown, kMissing };

  frmDatosTest() {
    databases.Create("Gestion.mdb")->Close();
    host->main->Open();
    for (const char* statement :
         {"CREATE TABLE Colaboradores (CP TEXT(10), Eliminado BIT)",
          "CREATE TABLE Donativos (Importe CURRENCY, Eliminado BIT)",
          "CREATE TABLE Modelo182Hacienda (NIF TEXT(20))",
          "CREATE TABLE Bancos (IDBanco LONG, Numero TEXT(4))",
          "CREATE TABLE Sucursales (IDSucursal LONG, CodBanco LONG, Codigo TEXT(4))",
          "CREATE TABLE Cuentas (CodSucursal LONG, DC TEXT(2), Numero TEXT(20), Eliminado BIT)",
          "INSERT INTO Bancos VALUES (1, '0049')", "INSERT INTO Sucursales VALUES (1, 1, '1500')",
          "INSERT INTO Donativos VALUES (9, False)", "INSERT INTO Donativos VALUES (10.5, False)"}) {
      host->main->Execute(statement);
    }
    for (const char* name : {"colaboradores.cp", "donativos.importe", "recibos.cuenta",
                             "modelo182hacienda.nif", "colaboradores.nuevo"}) {
      cCampos field;
      field.IDCampo(static_cast<std::int16_t>(catalogue.Count() + 1));
      field.NombreInternoCampo(name);
      catalogue.Add(field, FieldKey(field.IDCampo()));
    }
    objHost = host;
    auto& registry = com::ClassRegistry::Instance();
    registry.Register(
        {kHostApiProgId, kApiClass, [log = log] { return std::make_shared<testing::RecordingApi>(log); }});
    registry.Register(
        {"Prueba.Codec", kCuentaCodecClassId, [] { return std::make_shared<BackwardsCodec>(); }});
  }
  ~frmDatosTest() override {
    com::ClassRegistry::Instance().Unregister(kApiClass);
    com::ClassRegistry::Instance().Unregister(kCuentaCodecClassId);
    objHost = nullptr;
  }

  void AddAccount(const std::string& number) {
    host->main->Execute("INSERT INTO Cuentas VALUES (1, '57', '" + number + "', False)");
  }
  /// Shows the dialog for a field; the user does these things and then, if it is open, closes it by its
  /// frame.
  std::string Use(
      std::int16_t field, const std::function<void(frmDatos&)>& user = [](frmDatos&) {}) {
    toolkit.WhenShown("frmDatos", [&user](toolkit::Form& form) {
      user(dynamic_cast<frmDatos&>(form));
      if (form.Visible()) {
        EXPECT_TRUE(form.UserClose());
      }
    });
    const auto form = toolkit::MakeForm<frmDatos>(toolkit, catalogue);
    form->mintIDCampo = field;
    form->Show();
    // However the fill went, the dialog can be used and shows its list.
    EXPECT_TRUE(form->Enabled());
    EXPECT_EQ(toolkit.MousePointer(), 0);
    EXPECT_FALSE(form->prgDatos.Visible());
    EXPECT_TRUE(form->lstDatos.Visible());
    form->Unload();
    return form->mstrValorCampoElegido;
  }
  std::vector<std::string> Fill(std::int16_t field) {
    std::vector<std::string> items;
    Use(field, [&](frmDatos& form) {
      for (long i = 0; i < form.lstDatos.ListCount(); ++i) items.push_back(form.lstDatos.List(i));
    });
    return items;
  }
  std::vector<std::string> Boxes() {
    std::vector<std::string> boxes;
    for (const auto& record : toolkit.Records(Kind::kBox)) {
      boxes.push_back(std::to_string(record.number) + " " + record.text);
    }
    EXPECT_EQ(toolkit.Records(Kind::kBeep).size(), boxes.size());
    toolkit.ClearRecords();
    return boxes;
  }
  std::vector<std::string> Reported() {
    std::vector<std::string> reports;
    for (const std::string& call : log->Take()) {
      if (call.starts_with("VerError ")) reports.push_back(call);
    }
    return reports;
  }

  testing::TestDatabases databases;
  std::shared_ptr<testing::CallLog> log = std::make_shared<testing::CallLog>();
  std::shared_ptr<testing::RecordingHost> host = std::make_shared<testing::RecordingHost>(
      databases.Text("Gestion.mdb"), databases.Text("Informes.mdb"), log);
  toolkit::ScriptedToolkit toolkit;
  Collection<cCampos> catalogue;
};

TEST_F(frmDatosTest, TypedValueComesBackAsTyped) {
  EXPECT_EQ(Use(kImporte,
                [](frmDatos& form) {
                  EXPECT_FALSE(form.lstDatos.UserClick(0));
                  EXPECT_TRUE(form.txtDatos.UserFocus());
                  EXPECT_TRUE(form.txtDatos.UserType(" a'b "));
                  EXPECT_TRUE(form.Scope().UserEnter());
                  EXPECT_FALSE(form.Visible());
                }),
            " a'b ");
  EXPECT_EQ(Use(kImporte, [](frmDatos& form) { EXPECT_TRUE(form.cmdDatos(frmDatos::kAccept).UserClick()); }),
            "");
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(frmDatosTest, PickedValueComesBackAsShown) {
  EXPECT_EQ(Use(kImporte,
                [this](frmDatos& form) {
                  EXPECT_TRUE(form.txtDatos.UserType("7"));
                  EXPECT_TRUE(form.optDatos(frmDatos::kPicked).UserClick());
                  EXPECT_FALSE(form.txtDatos.UserType("8"));
                  EXPECT_TRUE(form.cmdDatos(frmDatos::kAccept).UserClick());
                  EXPECT_TRUE(form.Visible());
                  EXPECT_THAT(Boxes(), ElementsAre("48 ¡Debe seleccionar un elemento de la lista!"));
                  // A change of mode keeps both.
                  EXPECT_TRUE(form.lstDatos.UserClick(0));
                  EXPECT_TRUE(form.optDatos(frmDatos::kTyped).UserClick());
                  EXPECT_TRUE(form.optDatos(frmDatos::kPicked).UserClick());
                  EXPECT_EQ(form.txtDatos.Text(), "7");
                  EXPECT_EQ(form.lstDatos.SelCount(), 1);
                  EXPECT_TRUE(form.lstDatos.UserDoubleClick(0));
                  EXPECT_FALSE(form.Visible());
                }),
            "10.5");
}

TEST_F(frmDatosTest, LeavingGivesNoValue) {
  const std::function<void(frmDatos&)> ways[] = {
      [](frmDatos& form) { form.cmdDatos(frmDatos::kCancel).UserClick(); },
      [](frmDatos& form) { form.Scope().UserEscape(); },
      [](frmDatos&) {},
  };
  for (const auto& leave : ways) {
    EXPECT_EQ(Use(kImporte,
                  [&](frmDatos& form) {
                    form.txtDatos.Text("7");
                    leave(form);
                  }),
              "");
  }
}

TEST_F(frmDatosTest, TabKeyVisitsTheControlsInTheirOrder) {
  Use(kImporte, [](frmDatos& form) {
    EXPECT_THAT(form.Scope().TabOrder(), ElementsAre(&form.optDatos(0), &form.txtDatos, &form.optDatos(1),
                                                     &form.cmdDatos(1), &form.cmdDatos(0)));
  });
}

TEST_F(frmDatosTest, NumbersHaveAPointAndSortAsTexts) {
  EXPECT_THAT(Fill(kImporte), ElementsAre("10.5", "9"));
}

TEST_F(frmDatosTest, DialogTakesNoActionWhileItFills) {
  bool tried = false;
  toolkit.Loop().Post([&] {
    tried = true;
    ASSERT_NE(toolkit.ActiveForm(), nullptr);
    EXPECT_FALSE(toolkit.ActiveForm()->UserClose());
    EXPECT_EQ(toolkit.MousePointer(), 11);
  });
  EXPECT_THAT(Fill(kImporte).size(), 2);
  EXPECT_TRUE(tried);
}

TEST_F(frmDatosTest, TellsWhenThereIsNothingToList) {
  const std::string none =
      "64 ¡No existen valores para el campo en la bd,\rpor favor, introduzca un valor manualmente!";
  const std::string failed =
      "48 ¡No se pueden mostrar valores para el campo,\rpor favor, introduzca un valor manualmente!";
  EXPECT_THAT(Fill(kNif182), IsEmpty());
  EXPECT_THAT(Boxes(), ElementsAre(none));
  for (const std::int16_t field : {kUnknown, kMissing}) {
    EXPECT_THAT(Fill(field), IsEmpty());
    EXPECT_THAT(Boxes(), ElementsAre(failed));
  }
  host->main->Execute("DROP TABLE Modelo182Hacienda");
  EXPECT_THAT(Fill(kNif182), IsEmpty());
  EXPECT_THAT(Boxes(), ElementsAre(failed));
  EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(frmDatosTest, AccountsAreShownDecoded) {
  AddAccount("987");
  AddAccount("");
  AddAccount("123456789012");
  EXPECT_THAT(Fill(kCuenta), ElementsAre("0049150057", "0049150057210987654321", "0049150057789"));
  EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(frmDatosTest, RowThatFailsIsLeftOutAndToldOnce) {
  for (const char* number : {"987", "X1", "X2", "654"}) AddAccount(number);
  EXPECT_THAT(Fill(kCuenta), ElementsAre("0049150057456", "0049150057789"));
  EXPECT_THAT(Reported(), ElementsAre("VerError fillValorCampos frmDatos VelmarExportacion 7001"));
  com::ClassRegistry::Instance().Unregister(kCuentaCodecClassId);
  EXPECT_THAT(Fill(kCuenta), IsEmpty());
  EXPECT_THAT(Reported(), ElementsAre("VerError fillValorCampos frmDatos VelmarExportacion 429"));
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(frmDatosTest, RecordsetThatFailsEndsTheListAndIsToldOnce) {
  for (const char* number : {"987", "654", "321"}) AddAccount(number);
  // In the turn of the second row the host closes its connection, and the recordset with it.
  int turns = 0;
  const std::function<void()> count = [&] {
    if (++turns == 3) {
      host->main->Close();
    } else {
      toolkit.Loop().Post(count);
    }
  };
  toolkit.Loop().Post(count);
  EXPECT_THAT(Fill(kCuenta), ElementsAre("0049150057456", "0049150057789"));
  EXPECT_THAT(Reported(), ElementsAre("VerError fillValorCampos frmDatos VelmarExportacion 3704"));
}

TEST_F(frmDatosTest, FailureOfTheLoadIsToldAndTheDialogComesUp) {
  host->icon = "no/hay.ico";
  EXPECT_THAT(Fill(kImporte), ElementsAre("10.5", "9"));
  const auto reported = Reported();
  ASSERT_EQ(reported.size(), 1U);
  EXPECT_THAT(reported[0], ::testing::StartsWith("VerError Form_Load() frmDatos VelmarExportacion "));
}

TEST_F(frmDatosTest, ListsAHundredThousandValuesInOrder) {
  constexpr long kCount = 100000;
  host->main->BeginTrans();
  {
    ADODB::BulkInsert rows(*host->main, "Colaboradores", {"CP", "Eliminado"});
    for (long i = 0; i < kCount; ++i) {
      rows.Row({std::to_string(100000 + i * 77773 % kCount), false});
    }
  }
  host->main->CommitTrans();
  const auto items = Fill(kCp);
  ASSERT_EQ(items.size(), static_cast<std::size_t>(kCount));
  for (long i = 0; i < kCount; ++i) ASSERT_EQ(items[static_cast<std::size_t>(i)], std::to_string(100000 + i));
}

}  // namespace
}  // namespace velmar::wizard
