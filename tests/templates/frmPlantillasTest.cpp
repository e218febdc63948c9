#include "templates/frmPlantillas.h"

#include <gmock/gmock.h>

#include "platform/toolkit/MakeForm.h"
#include "templates/TemplateOffice.h"

namespace velmar::templates {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::Members;
using ::testing::StartsWith;

class frmPlantillasTest : public ::testing::Test {
 protected:
  /// Shows the dialog; the user does these things and then, if it is still open, closes it by its frame.
  void Use(std::uint8_t mode, const std::function<void(frmPlantillas&)>& user) {
    office.toolkit.WhenShown("frmPlantillas", [user](toolkit::Form& form) {
      user(dynamic_cast<frmPlantillas&>(form));
      if (form.Visible()) form.UserClose();
    });
    const auto form = toolkit::MakeForm<frmPlantillas>(office.toolkit, office.grid, office.order);
    form->mbytOperacion = mode;
    form->Show();
    EXPECT_FALSE(form->Loaded());
  }
  void Save(const std::function<void(frmPlantillas&)>& user) { Use(cConstPlantilla().Salvar(), user); }
  void Load(const std::function<void(frmPlantillas&)>& user) { Use(cConstPlantilla().Cargar(), user); }

  void FillControls() { TemplateControls(office.grid, office.order).Append(Members()); }

  testing::TemplateOffice office;
};

TEST_F(frmPlantillasTest, SavesOnceUnderTheNameInTheBox) {
  FillControls();
  Save([this](frmPlantillas& form) {
    EXPECT_TRUE(form.txtPlantilla.UserFocus());
    for (const bool click : {true, false}) {
      EXPECT_TRUE(form.txtPlantilla.UserType("   "));
      EXPECT_TRUE(click ? form.cmdPlantilla(frmPlantillas::kAccept).UserClick() : form.Scope().UserEnter());
      EXPECT_THAT(office.Boxes(),
                  ElementsAre("+48 ¡Debe introducir datos en el campo nombre de la plantilla!"));
      // The box has the focus again, and what is typed replaces what it held.
    }
    EXPECT_TRUE(form.txtPlantilla.UserType(std::string(160, 's')));
    // In the turns of a statement buttons and leaving only beep, and a new name comes too late.
    office.toolkit.Loop().Post([&form] {
      EXPECT_TRUE(form.cmdPlantilla(frmPlantillas::kAccept).UserClick());
      EXPECT_TRUE(form.UserClose());
      EXPECT_TRUE(form.Visible());
      EXPECT_TRUE(form.txtPlantilla.UserType("otra"));
    });
    EXPECT_TRUE(form.Scope().UserEnter());
    EXPECT_FALSE(form.Visible());
  });
  EXPECT_EQ(office.toolkit.Records(toolkit::Record::Kind::kBeep).size(), 2U);
  const std::string name(150, 's');
  EXPECT_THAT(office.Table(),
              ElementsAre(name + "|7|(COL) Colaboradores|11|Provincia|-1|{Provincia} = `\"Á\"´ \\ [x] %|",
                          name + "|7|(COL) Colaboradores|3|Apellido|2||",
                          name + "|7|(REC) Recibos|29|Importe|0|{Importe} > `10.5´|"));
}

TEST_F(frmPlantillasTest, AsksBeforeItReplaces) {
  office.Save("Los \"fijos\"", Members());
  const auto before = office.Table();
  office.grid.AddItem("(DON) Donativos\tTipo\t");
  office.grid.RowData(1, 22);
  office.toolkit.Answer(toolkit::kNo);
  office.toolkit.Answer(toolkit::kYes);
  Save([&](frmPlantillas& form) {
    form.txtPlantilla.Text("LOS \"fijos\"");
    EXPECT_TRUE(form.lstPlantilla.UserDoubleClick(-1));
    EXPECT_EQ(office.Table(), before);
    EXPECT_TRUE(form.lstPlantilla.UserDoubleClick(-1));
  });
  const char* const question =
      "+36 La plantilla 'LOS ''fijos''' ya existe en la base de datos.\r¿Desea modificar la plantilla "
      "existente?";
  EXPECT_THAT(office.Boxes(), ElementsAre(question, question));
  EXPECT_THAT(office.Table(), ElementsAre("LOS 'fijos'|7|(DON) Donativos|22|Tipo|-1||"));
}

TEST_F(frmPlantillasTest, LoadsTheSelectedTemplateWhateverTheBoxHolds) {
  office.Save("zeta", Members());
  office.Save("Álvaro", Members());
  office.Save("ajena", Members(), 8);
  office.grid.AddItem("(MOD) Modelo182\tClave\t");
  office.order.AddItem("(MOD) Clave");
  Load([this](frmPlantillas& form) {
    EXPECT_EQ(form.lstPlantilla.ListCount(), 2);
    EXPECT_EQ(form.lstPlantilla.List(0), "Álvaro");
    EXPECT_TRUE(form.lstPlantilla.UserDoubleClick(-1));
    EXPECT_THAT(office.Boxes(),
                ElementsAre("+48 ¡Debe seleccionar una plantilla de la lista de plantillas!"));
    form.lstPlantilla.UserClick(form.lstPlantilla.FindStringExact("zeta"));
    EXPECT_EQ(form.txtPlantilla.Text(), "zeta");
    form.txtPlantilla.Text("Otra");
    EXPECT_TRUE(form.Scope().UserEnter());
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(form.prgPlantilla.Value(), 3);
  });
  EXPECT_EQ(office.grid.Rows(), 4);
  EXPECT_EQ(office.grid.TextMatrix(3, 2), "{Importe} > `10.5´");
  EXPECT_EQ(office.grid.RowData(3), 29);
  // What is not in the grid is not kept, and a text of the list is made anew.
  EXPECT_EQ(office.order.ListCount(), 2);
  EXPECT_EQ(office.order.List(0), "(REC) Importe");
  EXPECT_EQ(office.order.ItemData(0), 29);
}

TEST_F(frmPlantillasTest, DeletesTheSelectedTemplateAfterAQuestion) {
  for (const char* name : {"Altas", "Bajas"}) office.Save(name, Members());
  office.toolkit.Answer(toolkit::kNo);
  office.toolkit.Answer(toolkit::kYes);
  Save([this](frmPlantillas& form) {
    auto& button = form.cmdPlantilla(frmPlantillas::kDelete);
    form.lstPlantilla.UserClick(form.lstPlantilla.FindStringExact("Bajas"));
    form.txtPlantilla.Text("Altas");
    EXPECT_TRUE(button.UserClick());
    EXPECT_TRUE(button.UserClick());
    EXPECT_EQ(form.lstPlantilla.ListCount(), 1);
    EXPECT_EQ(form.txtPlantilla.Text(), "");
    const std::string question =
        "36 Se dispone a eliminar la plantilla 'Bajas' de la lista.\r¿Desea continuar con el proceso de "
        "eliminación?";
    EXPECT_THAT(office.Boxes(), ElementsAre(question, question));
  });
  EXPECT_THAT(office.Store().Names(), ElementsAre("Altas"));
}

TEST_F(frmPlantillasTest, FailuresAreToldUnderTheRoutinesLabel) {
  office.toolkit.AlwaysAnswer(toolkit::kYes);
  office.Save("La \"Caixa\"", Members());
  const auto before = office.Table();
  FillControls();
  const auto press = [this](frmPlantillas& form, int button, const std::string& routine, bool stays) {
    form.cmdPlantilla_Click(button);
    EXPECT_EQ(form.Visible(), stays);
    EXPECT_THAT(office.log->Take(),
                Contains("VerError " + routine + " frmPlantillas VelmarExportacion 3075"));
  };
  Save([&](frmPlantillas& form) {
    form.txtPlantilla.Text("x' OR 'a'='a");
    press(form, frmPlantillas::kAccept, "cmdPlantilla_Click(0)", true);
    office.grid.TextMatrix(1, 2, "{Provincia} = `L'Hospitalet´");
    form.txtPlantilla.Text("Nueva");
    press(form, frmPlantillas::kAccept, "GuardarPlantilla", false);
  });
  Load([&](frmPlantillas& form) {
    form.lstPlantilla.UserClick(form.lstPlantilla.FindStringExact("La 'Caixa'"));
    press(form, frmPlantillas::kDelete, "cmdPlantilla_Click(2)", true);
    press(form, frmPlantillas::kAccept, "CargarPlantilla", false);
  });
  EXPECT_EQ(office.grid.Rows(), 1);
  EXPECT_EQ(office.Table(), before);

  // The dialog comes up without its table and without its icon.
  office.host->main->Execute("DROP TABLE ExportacionPlantillas");
  Load([](frmPlantillas& form) { EXPECT_EQ(form.lstPlantilla.ListCount(), 0); });
  EXPECT_THAT(office.log->Take(), Contains("VerError fillPlantillas frmPlantillas VelmarExportacion 3078"));
  office.host->icon = "no/hay.ico";
  Load([](frmPlantillas& form) { EXPECT_TRUE(form.cmdPlantilla(frmPlantillas::kCancel).UserClick()); });
  EXPECT_THAT(office.log->Take(), Contains(StartsWith("VerError Form_Load() frmPlantillas ")));
}

}  // namespace
}  // namespace velmar::templates
