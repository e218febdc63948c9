#include "templates/TemplateStore.h"

#include <gmock/gmock.h>

#include "templates/TemplateOffice.h"

namespace velmar::templates {
namespace {

using testing::Members;
using ::testing::SizeIs;

constexpr auto kReplace = TemplateStore::Existing::kReplace;

class TemplateStoreTest : public ::testing::Test {
 protected:
  TemplateContent Load(const std::string& name) const {
    TemplateContent content = Members();
    office.Store().Load(name, content);
    return content;
  }

  testing::TemplateOffice office;
};

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
  office.Save("Ajena", Members(), -8);
  office.Save("Propia", Members());
  auto before = office.Table();
  for (const std::string& name : {std::string("x' OR CodUsuario = -8 OR 'a' = 'a"), std::string("a\0b", 3)}) {
    SCOPED_TRACE(name);
    EXPECT_THROW(office.Store().Exists(name), RuntimeError);
    EXPECT_THROW(Load(name), RuntimeError);
    EXPECT_THROW(office.Store().Delete(name), RuntimeError);
    EXPECT_THROW(office.Store().Save(name, Members(), kReplace), RuntimeError);
    EXPECT_EQ(office.Table(), before);
  }
  // Where another user's has the same name, too.
  for (const char* name : {"[Propia]", "%", "_ropia", "*", " Propia", "Pro;pia -- /* */", "a\tb\r\nc", "ñÑ€𝄞",
                           "#1/1/2020#", "\" OR 1 = 1 OR \""}) {
    SCOPED_TRACE(name);
    office.Save(name, Members(), -8);
    before = office.Table();
    EXPECT_FALSE(office.Store().Exists(name));
    office.Save(name, Members());
    EXPECT_TRUE(office.Store().Exists(name));
    office.Store().Save(name, Members(), kReplace);
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
      [](TemplateContent& content) { content.fields[1].campo = "d''entrada"; },
      [](TemplateContent& content) { content.fields[0].tabla = "''"; },
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
