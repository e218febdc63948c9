#include "templates/frmPlantillas.h"

#include <gmock/gmock.h>

#include "platform/toolkit/MakeForm.h"
#include "templates/TemplateOffice.h"

namespace velmar::templates {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::Members;

constexpr const char* kNoName = "+48 ¡Debe introducir datos en el campo nombre de la plantilla!";
constexpr const char* kNoChoice = "+48 ¡Debe seleccionar una plantilla de la lista de plantillas!";

class frmPlantillasTest : public ::testing::Test {
 protected:
  /// Shows the dialog; the user does these things and then, if it is still open, closes it by its frame.
  void Use(std::uint8_t mode, std::function<void(frmPlantillas&)> user) {
    office.toolkit.WhenShown("frmPlantillas", [user = std::move(user)](toolkit::Form& form) {
      user(dynamic_cast<frmPlantillas&>(form));
      if (form.Visible()) {
        EXPECT_TRUE(form.UserClose());
      }
    });
    const auto form = toolkit::MakeForm<frmPlantillas>(office.toolkit, office.grid, office.order);
    form->mbytOperacion = mode;
    form->Show();
    EXPECT_FALSE(form->Loaded());
  }
  void Save(std::function<void(frmPlantillas&)> user) { Use(cConstPlantilla().Salvar(), std::move(user)); }
  void Load(std::function<void(frmPlantillas&)> user) { Use(cConstPlantilla().Cargar(), std::move(user)); }

  static bool Choose(frmPlantillas& form, const std::string& name) {
    return form.lstPlantilla.UserClick(form.lstPlantilla.FindStringExact(name));
  }
  static std::vector<std::string> List(const frmPlantillas& form) {
    std::vector<std::string> names;
    for (long i = 0; i < form.lstPlantilla.ListCount(); ++i) names.push_back(form.lstPlantilla.List(i));
    return names;
  }
  void FillControls() { TemplateControls(office.grid, office.order).Append(Members()); }
  std::vector<std::string> Grid() const {
    std::vector<std::string> rows;
    for (const auto& field : TemplateControls(Nonconst(office.grid), Nonconst(office.order)).Read().fields) {
      rows.push_back(field.campo + "|" + field.filtro + "|" + std::to_string(field.idCampo));
    }
    return rows;
  }
  std::vector<std::string> Order() const {
    std::vector<std::string> items;
    for (const auto& item : TemplateControls(Nonconst(office.grid), Nonconst(office.order)).Read().order) {
      items.push_back(item.text + "=" + std::to_string(item.idCampo));
    }
    return items;
  }
  template <typename T>
  static T& Nonconst(const T& value) {
    return const_cast<T&>(value);
  }
  void Store(const std::string& name, std::int32_t user = 7) {
    office.Store(user).Save(name, Members(), TemplateStore::Existing::kNone);
  }

  testing::TemplateOffice office;
};

TEST_F(frmPlantillasTest, ComesUpInItsMode) {
  Store("zeta");
  Store("Álvaro");
  Store("ajena", 8);
  Save([](frmPlantillas& form) {
    EXPECT_EQ(form.Caption(), "Asistente de plantillas: Salvar plantilla");
    EXPECT_THAT(List(form), ElementsAre("Álvaro", "zeta"));
    EXPECT_FALSE(form.prgPlantilla.Visible());
    std::vector<const controls::Control*> order;
    for (const controls::Control* control : form.Scope().TabOrder()) order.push_back(control);
    EXPECT_THAT(order, ElementsAre(&form.txtPlantilla, &form.lstPlantilla, &form.cmdPlantilla(2),
                                   &form.cmdPlantilla(0), &form.cmdPlantilla(1)));
    EXPECT_TRUE(form.Scope().UserEscape());
    EXPECT_FALSE(form.Visible());
  });
  Load([](frmPlantillas& form) { EXPECT_EQ(form.Caption(), "Asistente de plantillas: Cargar plantilla"); });
  EXPECT_THAT(office.Boxes(), IsEmpty());
}

TEST_F(frmPlantillasTest, SavesUnderTheNameInTheBox) {
  FillControls();
  Save([this](frmPlantillas& form) {
    const int selected = testing::SelectingApi::selected;
    EXPECT_TRUE(form.txtPlantilla.UserFocus());
    EXPECT_TRUE(form.txtPlantilla.UserType("   "));
    EXPECT_TRUE(form.cmdPlantilla(frmPlantillas::kAccept).UserClick());
    EXPECT_THAT(office.Boxes(), ElementsAre(kNoName));
    EXPECT_TRUE(form.txtPlantilla.HasFocus());
    EXPECT_EQ(testing::SelectingApi::selected, selected + 2);
    EXPECT_TRUE(form.txtPlantilla.UserType(std::string(160, 's')));
    EXPECT_EQ(form.txtPlantilla.Text(), std::string(150, 's'));
    EXPECT_TRUE(form.Scope().UserEnter());
    EXPECT_FALSE(form.Visible());
  });
  EXPECT_THAT(office.Store().Names(), ElementsAre(std::string(150, 's')));
  EXPECT_EQ(office.Table().size(), 3U);
  EXPECT_THAT(office.Reported(), IsEmpty());
}

TEST_F(frmPlantillasTest, AsksBeforeItReplaces) {
  Store("Socios");
  Store("Socios", 8);
  const auto before = office.Table();
  office.grid.AddItem("(DON) Donativos\tTipo\t");
  office.grid.RowData(1, 22);
  office.toolkit.Answer(toolkit::kNo);
  office.toolkit.Answer(toolkit::kYes);
  Save([&](frmPlantillas& form) {
    EXPECT_TRUE(form.lstPlantilla.UserDoubleClick(0));
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(office.Table(), before);
    EXPECT_TRUE(form.lstPlantilla.UserDoubleClick(0));
    EXPECT_FALSE(form.Visible());
  });
  const std::string question =
      "+36 La plantilla 'Socios' ya existe en la base de datos.\r¿Desea modificar la plantilla existente?";
  EXPECT_THAT(office.Boxes(), ElementsAre(question, question));
  EXPECT_EQ(office.Table().size(), 4U);
  EXPECT_EQ(office.Table().back(), "Socios|7|(DON) Donativos|22|Tipo|-1|");
}

TEST_F(frmPlantillasTest, DoubleClickBesideTheListSavesUnderTheNameInTheBox) {
  FillControls();
  Save([](frmPlantillas& form) {
    EXPECT_TRUE(form.txtPlantilla.UserFocus());
    EXPECT_TRUE(form.txtPlantilla.UserType(" Nueva"));
    EXPECT_TRUE(form.lstPlantilla.UserDoubleClick(-1));
    EXPECT_FALSE(form.Visible());
  });
  EXPECT_THAT(office.Store().Names(), ElementsAre(" Nueva"));
  EXPECT_THAT(office.Boxes(), IsEmpty());
}

TEST_F(frmPlantillasTest, FailureOfTheLoadIsToldAndTheDialogComesUp) {
  Store("Socios");
  office.host->icon = "no/hay.ico";
  Load([](frmPlantillas& form) {
    EXPECT_TRUE(form.txtPlantilla.UserFocus());
    EXPECT_TRUE(form.cmdPlantilla(frmPlantillas::kCancel).UserClick());
  });
  const auto reported = office.Reported();
  ASSERT_EQ(reported.size(), 1U);
  EXPECT_THAT(reported[0], ::testing::StartsWith("VerError Form_Load() frmPlantillas VelmarExportacion "));
}

TEST_F(frmPlantillasTest, QuestionShowsTheQuotedName) {
  FillControls();
  Save([](frmPlantillas& form) {
    form.txtPlantilla.Text("a\"b");
    form.cmdPlantilla_Click(frmPlantillas::kAccept);
  });
  office.toolkit.Answer(toolkit::kNo);
  Save([](frmPlantillas& form) {
    form.txtPlantilla.Text("A\"B");
    form.cmdPlantilla_Click(frmPlantillas::kAccept);
    EXPECT_TRUE(form.Visible());
  });
  EXPECT_THAT(office.Boxes(), ElementsAre("+36 La plantilla 'A''B' ya existe en la base de datos.\r¿Desea "
                                          "modificar la plantilla existente?"));
}

TEST_F(frmPlantillasTest, LoadsTheSelectedTemplateWhateverTheBoxHolds) {
  Store("Socios");
  office.grid.AddItem("(MOD) Modelo182\tClave\t");
  office.order.AddItem("(MOD) Clave");
  Load([this](frmPlantillas& form) {
    EXPECT_TRUE(form.lstPlantilla.UserDoubleClick(-1));
    EXPECT_THAT(office.Boxes(), ElementsAre(kNoChoice));
    EXPECT_TRUE(Choose(form, "Socios"));
    EXPECT_EQ(form.txtPlantilla.Text(), "Socios");
    form.txtPlantilla.Text("Otra");
    EXPECT_TRUE(form.Scope().UserEnter());
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(form.prgPlantilla.Value(), 3);
  });
  // The fields are those that were stored, whatever a catalogue holds.
  EXPECT_THAT(Grid(), ElementsAre("Provincia|{Provincia} = `Madrid´|11", "Apellido||3",
                                  "Importe|{Importe} > `10.5´|29"));
  EXPECT_THAT(Order(), ElementsAre("(REC) Importe=29", "(COL) Apellido=3"));
}

TEST_F(frmPlantillasTest, LeavingChangesNothing) {
  Store("Socios");
  FillControls();
  const auto grid = Grid();
  for (const bool byFrame : {true, false}) {
    Load([&](frmPlantillas& form) {
      Choose(form, "Socios");
      if (!byFrame) form.cmdPlantilla(frmPlantillas::kCancel).UserClick();
    });
    EXPECT_EQ(Grid(), grid);
  }
}

TEST_F(frmPlantillasTest, DeletesTheSelectedTemplateAfterAQuestion) {
  Store("Altas");
  Store("Bajas");
  Store("Bajas", 8);
  office.toolkit.Answer(toolkit::kNo);
  office.toolkit.Answer(toolkit::kYes);
  Save([this](frmPlantillas& form) {
    auto& button = form.cmdPlantilla(frmPlantillas::kDelete);
    Choose(form, "Bajas");
    form.txtPlantilla.Text("Altas");
    EXPECT_TRUE(button.UserClick());
    EXPECT_THAT(List(form), ElementsAre("Altas", "Bajas"));
    EXPECT_TRUE(button.UserClick());
    EXPECT_THAT(List(form), ElementsAre("Altas"));
    EXPECT_EQ(form.txtPlantilla.Text(), "");
    const std::string question =
        "36 Se dispone a eliminar la plantilla 'Bajas' de la lista.\r¿Desea continuar con el proceso de "
        "eliminación?";
    EXPECT_THAT(office.Boxes(), ElementsAre(question, question));
    EXPECT_TRUE(button.UserClick());
    EXPECT_THAT(office.Boxes(), ElementsAre(kNoChoice));
  });
  EXPECT_THAT(office.Store(8).Names(), ElementsAre("Bajas"));
}

TEST_F(frmPlantillasTest, ApostrophesFailUnderTheRoutinesLabel) {
  Store("La \"Caixa\"");
  Store("Socios");
  const auto before = office.Table();
  FillControls();
  Save([this](frmPlantillas& form) {
    form.txtPlantilla.Text("x' OR 'a'='a");
    form.cmdPlantilla_Click(frmPlantillas::kAccept);
    EXPECT_TRUE(form.Visible());
    EXPECT_THAT(office.Reported(),
                ElementsAre("VerError cmdPlantilla_Click(0) frmPlantillas VelmarExportacion 3075"));
  });
  // A filter with an apostrophe: nothing is replaced, and the dialog closes.
  office.grid.TextMatrix(1, 2, "{Provincia} = `L'Hospitalet´");
  office.toolkit.AlwaysAnswer(toolkit::kYes);
  Save([](frmPlantillas& form) {
    form.txtPlantilla.Text("Socios");
    form.cmdPlantilla_Click(frmPlantillas::kAccept);
    EXPECT_FALSE(form.Visible());
  });
  EXPECT_THAT(office.Reported(),
              ElementsAre("VerError GuardarPlantilla frmPlantillas VelmarExportacion 3075"));
  Load([this](frmPlantillas& form) {
    Choose(form, "La 'Caixa'");
    form.cmdPlantilla_Click(frmPlantillas::kDelete);
    EXPECT_TRUE(form.Visible());
    EXPECT_THAT(office.Reported(),
                ElementsAre("VerError cmdPlantilla_Click(2) frmPlantillas VelmarExportacion 3075"));
    form.cmdPlantilla_Click(frmPlantillas::kAccept);
    EXPECT_FALSE(form.Visible());
  });
  EXPECT_THAT(office.Reported(),
              ElementsAre("VerError CargarPlantilla frmPlantillas VelmarExportacion 3075"));
  EXPECT_THAT(Grid(), IsEmpty());
  EXPECT_THAT(Order(), IsEmpty());
  EXPECT_EQ(office.Table(), before);
}

TEST_F(frmPlantillasTest, ComesUpWithoutItsTable) {
  office.main->Execute("DROP TABLE ExportacionPlantillas");
  Load([this](frmPlantillas& form) {
    EXPECT_THAT(List(form), IsEmpty());
    EXPECT_THAT(office.Reported(),
                ElementsAre("VerError fillPlantillas frmPlantillas VelmarExportacion 3078"));
  });
}

TEST_F(frmPlantillasTest, ActionsInTheTurnsOfAStatementOnlyBeep) {
  FillControls();
  Save([this](frmPlantillas& form) {
    form.txtPlantilla.Text("Socios");
    office.toolkit.Loop().Post([&form] {
      EXPECT_TRUE(form.cmdPlantilla(frmPlantillas::kAccept).UserClick());
      EXPECT_TRUE(form.UserClose());
      EXPECT_TRUE(form.Visible());
    });
    form.cmdPlantilla_Click(frmPlantillas::kAccept);
    EXPECT_FALSE(form.Visible());
  });
  EXPECT_EQ(office.Table().size(), 3U);
  EXPECT_EQ(office.toolkit.Records(toolkit::Record::Kind::kBeep).size(), 1U);
}

}  // namespace
}  // namespace velmar::templates
