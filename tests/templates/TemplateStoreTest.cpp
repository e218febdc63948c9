#include "templates/TemplateStore.h"

#include <gmock/gmock.h>

#include "templates/TemplateOffice.h"

namespace velmar::templates {
namespace {

using ::testing::ElementsAre;
using testing::Members;
using ::testing::SizeIs;

constexpr auto kReplace = TemplateStore::Existing::kReplace;

class TemplateStoreTest : public ::testing::Test {
 protected:
  TemplateContent Load(const std::string& name, std::int32_t user = 7) const {
    TemplateContent content = Members();
    office.Store(user).Load(name, content);
    return content;
  }

  testing::TemplateOffice office;
};

TEST_F(TemplateStoreTest, KeepsGridOrderFiltersAndSortOrder) {
  office.Save("Socios", Members());
  const TemplateContent loaded = Load("socios");
  EXPECT_THAT(office.Table(),
              ElementsAre("Socios|7|(COL) Colaboradores|11|Provincia|-1|{Provincia} = `\"Á\"´ \\ [x] %|",
                          "Socios|7|(COL) Colaboradores|3|Apellido|2||",
                          "Socios|7|(REC) Recibos|29|Importe|0|{Importe} > `10.5´|"));
  ASSERT_THAT(loaded.fields, SizeIs(3));
  EXPECT_EQ(loaded.fields[0].filtro, Members().fields[0].filtro);
  // What is not in the grid is not kept, and a text of the list is made anew.
  ASSERT_THAT(loaded.order, SizeIs(2));
  EXPECT_EQ(loaded.order[0].text, "(REC) Importe");
  EXPECT_EQ(loaded.order[0].idCampo, 29);
  EXPECT_THAT(Load("Nadie").fields, SizeIs(0));
}

TEST_F(TemplateStoreTest, TwoUsersDoNotSeeEachOther) {
  TemplateContent other = Members();
  other.fields.resize(1);
  office.Save("Socios", Members());
  office.Save("Socios", other, -8);
  office.Save("Bajas", other, -8);
  EXPECT_THAT(office.Store(7).Names(), ElementsAre("Socios"));
  EXPECT_THAT(Load("Socios", -8).fields, SizeIs(1));

  office.Store(-8).Save("SOCIOS", other, kReplace);
  EXPECT_THAT(office.Store(-8).Names(), ElementsAre("Bajas", "SOCIOS"));
  office.Store(-8).Delete("Socios");
  EXPECT_THAT(office.Store(-8).Names(), ElementsAre("Bajas"));
  EXPECT_THAT(Load("Socios", 7).fields, SizeIs(3));
}

TEST_F(TemplateStoreTest, FailureInTheMiddleOfASaveLeavesTheOldTemplate) {
  office.host->main->Execute(
      "CREATE UNIQUE INDEX Clave ON ExportacionPlantillas (Nombre, CodUsuario, IDCampo)");
  office.Save("Socios", Members());
  const auto before = office.Table();
  TemplateContent changed = Members();
  changed.fields[2].idCampo = changed.fields[0].idCampo;
  EXPECT_THROW(office.Store().Save("Socios", changed, kReplace), RuntimeError);
  EXPECT_EQ(office.Table(), before);
  office.host->main->BeginTrans();  // none is left open
  EXPECT_THROW(office.Save("Otra", Members()), RuntimeError);
  office.host->main->CommitTrans();  // the host's own has stayed open
  EXPECT_EQ(office.Table(), before);
  // An index over the table does not change the order of the grid.
  EXPECT_EQ(Load("Socios").fields[0].campo, "Provincia");
}

TEST_F(TemplateStoreTest, NamesReachNothingButTheirOwnTemplate) {
  office.Save("Ajena", Members(), 8);
  office.Save("Propia", Members());
  const auto before = office.Table();
  const std::string refused[] = {"D'Artagnan", "x' OR CodUsuario = 8 OR 'a' = 'a", "\"' OR 1 = 1 OR '\"",
                                 std::string("a\0b", 3)};
  for (const std::string& name : refused) {
    SCOPED_TRACE(name);
    EXPECT_THROW(office.Store().Exists(name), RuntimeError);
    EXPECT_THROW(Load(name), RuntimeError);
    EXPECT_THROW(office.Store().Delete(name), RuntimeError);
    EXPECT_THROW(office.Store().Save(name, Members(), kReplace), RuntimeError);
    EXPECT_EQ(office.Table(), before);
  }
  for (const char* name : {"[Propia]", "%", "_ropia", "*", " Propia", "Pro;pia -- /* */", "a\tb\r\nc", "ñÑ€𝄞",
                           "#1/1/2020#", "\" OR 1 = 1 OR \""}) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(office.Store().Exists(name));
    office.Save(name, Members());
    EXPECT_TRUE(office.Store().Exists(name));
    EXPECT_FALSE(office.Store(8).Exists(name));
    EXPECT_THAT(Load(name).fields, SizeIs(3));
    office.Store().Delete(name);
    EXPECT_EQ(office.Table(), before);
  }
}

TEST_F(TemplateStoreTest, RefusesContentBeforeAnyStatementRuns) {
  office.Save("Socios", Members());
  const auto before = office.Table();
  void (*const changes[])(TemplateContent&) = {
      [](TemplateContent& content) { content.fields[2].filtro = "L''Hospitalet"; },
      [](TemplateContent& content) { content.fields[1].campo = "d'entrada"; },
      [](TemplateContent& content) { content.fields[0].tabla = "'"; },
      [](TemplateContent& content) { content.fields[0].idCampo = 32768; },
      [](TemplateContent& content) { content.fields.clear(); },
  };
  for (const auto change : changes) {
    TemplateContent content = Members();
    change(content);
    EXPECT_THROW(office.Store().Save("Socios", content, kReplace), RuntimeError);
    EXPECT_EQ(office.Table(), before);
  }
}

}  // namespace
}  // namespace velmar::templates
