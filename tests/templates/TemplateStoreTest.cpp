#include "templates/TemplateStore.h"

#include <gmock/gmock.h>

#include "platform/error/RuntimeError.h"
#include "templates/TemplateOffice.h"

namespace velmar::templates {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::Members;
using ::testing::SizeIs;

constexpr auto kNew = TemplateStore::Existing::kNone;
constexpr auto kReplace = TemplateStore::Existing::kReplace;

class TemplateStoreTest : public ::testing::Test {
 protected:
  static std::string Text(const TemplateContent& content) {
    std::string text;
    for (const auto& field : content.fields) {
      text +=
          field.tabla + "|" + field.campo + "|" + field.filtro + "|" + std::to_string(field.idCampo) + "\n";
    }
    for (const auto& item : content.order) text += item.text + "=" + std::to_string(item.idCampo) + "\n";
    return text;
  }
  TemplateContent Load(const std::string& name, std::int32_t user = 7) const {
    TemplateContent content;
    office.Store(user).Load(name, content);
    return content;
  }
  template <typename Action>
  static long Failure(Action action) {
    try {
      action();
    } catch (const RuntimeError& failure) {
      return failure.Number();
    }
    return 0;
  }

  testing::TemplateOffice office;
};

TEST_F(TemplateStoreTest, KeepsGridOrderFiltersAndSortOrder) {
  office.Store().Save("Socios", Members(), kNew);
  EXPECT_THAT(office.Table(),
              ElementsAre("Socios|7|(COL) Colaboradores|11|Provincia|-1|{Provincia} = `Madrid´",
                          "Socios|7|(COL) Colaboradores|3|Apellido|2|",
                          "Socios|7|(REC) Recibos|29|Importe|0|{Importe} > `10.5´"));
  TemplateContent expected = Members();
  // What is not in the grid is not kept, and a text of the list is made anew.
  expected.order = {{"(REC) Importe", 29}, {"(COL) Apellido", 3}};
  EXPECT_EQ(Text(Load("socios")), Text(expected));
}

TEST_F(TemplateStoreTest, SummariesCountWhatEachTemplateHolds) {
  TemplateContent plain = Members();
  plain.fields[0].filtro.clear();
  plain.order.clear();
  office.Store().Save("Socios", Members(), kNew);
  office.Store().Save("\"Ágiles\"", plain, kNew);
  office.Store(8).Save("Socios", plain, kNew);
  std::vector<std::string> lines;
  for (const auto& summary : office.Store().Summaries()) {
    lines.push_back(summary.name + " " + std::to_string(summary.fields) + " " +
                    std::to_string(summary.filters) + " " + std::to_string(summary.sorted));
  }
  EXPECT_THAT(lines, ElementsAre("'Ágiles' 3 1 0", "Socios 3 2 2"));
  EXPECT_THAT(office.Store(9).Summaries(), IsEmpty());
}

TEST_F(TemplateStoreTest, NameWithoutTemplateEmptiesWhatIsThere) {
  TemplateContent content = Members();
  office.Store().Load("Nadie", content);
  EXPECT_EQ(Text(content), "");
}

TEST_F(TemplateStoreTest, ProgressCountsEveryRowTwiceOnLoad) {
  std::vector<std::string> told;
  const auto note = [&](long done, long total) {
    told.push_back(std::to_string(done) + "/" + std::to_string(total));
  };
  office.Store().Save("Socios", Members(), kNew, note);
  EXPECT_THAT(told, ElementsAre("0/3", "1/3", "2/3", "3/3"));
  told.clear();
  TemplateContent content;
  office.Store().Load("Socios", content, note);
  EXPECT_THAT(told, ElementsAre("0/3", "1/3", "2/3", "3/3", "3/3", "0/3", "1/3", "2/3", "3/3"));
}

TEST_F(TemplateStoreTest, TwoUsersDoNotSeeEachOther) {
  TemplateContent other = Members();
  other.fields.resize(1);
  office.Store(7).Save("Socios", Members(), kNew);
  office.Store(-8).Save("Socios", other, kNew);
  office.Store(-8).Save("Bajas", other, kNew);
  EXPECT_THAT(office.Store(7).Names(), ElementsAre("Socios"));
  EXPECT_THAT(office.Store(-8).Names(), ElementsAre("Bajas", "Socios"));
  EXPECT_FALSE(office.Store(7).Exists("Bajas"));
  EXPECT_THAT(Load("Socios", -8).fields, SizeIs(1));

  office.Store(-8).Save("SOCIOS", other, kReplace);
  EXPECT_THAT(Load("Socios", 7).fields, SizeIs(3));
  EXPECT_THAT(office.Store(-8).Names(), ElementsAre("Bajas", "SOCIOS"));
  office.Store(-8).Delete("Socios");
  EXPECT_THAT(Load("Socios", 7).fields, SizeIs(3));
  EXPECT_FALSE(office.Store(-8).Exists("socios"));
}

TEST_F(TemplateStoreTest, FailureInTheMiddleOfASaveLeavesTheOldTemplate) {
  office.main->Execute("CREATE UNIQUE INDEX Clave ON ExportacionPlantillas (Nombre, CodUsuario, IDCampo)");
  office.Store().Save("Socios", Members(), kNew);
  const auto before = office.Table();
  TemplateContent changed = Members();
  changed.fields[2].idCampo = changed.fields[0].idCampo;
  EXPECT_NE(Failure([&] { office.Store().Save("Socios", changed, kReplace); }), 0);
  EXPECT_EQ(office.Table(), before);
  // The user stops the host while the rows are written.
  EXPECT_EQ(Failure([&] {
              office.Store().Save("Socios", Members(), kReplace, [](long done, long) {
                if (done == 2) throw RuntimeError(7000, "parada");
              });
            }),
            7000);
  EXPECT_EQ(office.Table(), before);
  office.main->BeginTrans();  // none is left open
  office.main->RollbackTrans();
  // An index over the table does not change the order of the grid.
  EXPECT_EQ(Load("Socios").fields[0].campo, "Provincia");
}

TEST_F(TemplateStoreTest, SaveInATransactionOfTheHostLeavesItOpen) {
  office.main->BeginTrans();
  EXPECT_NE(Failure([&] { office.Store().Save("Socios", Members(), kNew); }), 0);
  office.main->CommitTrans();
  EXPECT_THAT(office.Table(), IsEmpty());
}

TEST_F(TemplateStoreTest, NamesReachNothingButTheirOwnTemplate) {
  office.Store(8).Save("Ajena", Members(), kNew);
  office.Store(7).Save("Propia", Members(), kNew);
  const auto before = office.Table();
  const std::vector<std::string> refused = {
      "'",
      "D'Artagnan",
      "''",
      "x' OR 'a' = 'a",
      "x' OR CodUsuario = 8 OR Nombre = 'x",
      "\"' OR 1 = 1 OR '\"",
      "Propia'; DELETE FROM ExportacionPlantillas; '",
      std::string("a\0b", 3),
  };
  for (const std::string& name : refused) {
    SCOPED_TRACE(name);
    TemplateContent content;
    EXPECT_EQ(Failure([&] { office.Store().Exists(name); }), kQuerySyntax);
    EXPECT_EQ(Failure([&] { office.Store().Load(name, content); }), kQuerySyntax);
    EXPECT_EQ(Failure([&] { office.Store().Delete(name); }), kQuerySyntax);
    EXPECT_EQ(Failure([&] { office.Store().Save(name, Members(), kReplace); }), kQuerySyntax);
    EXPECT_EQ(office.Table(), before);
  }
  const std::vector<std::string> taken = {"[Propia]",
                                          "%",
                                          "_ropia",
                                          "*",
                                          "Propia ",
                                          " Propia",
                                          "Pro;pia -- /* */",
                                          "a\tb\r\nc",
                                          "\\",
                                          "ñÑ€𝄞",
                                          "#1/1/2020#",
                                          "{x} `y´",
                                          std::string(150, 'n'),
                                          "\"",
                                          "\" OR 1 = 1 OR \""};
  for (const std::string& name : taken) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(office.Store().Exists(name));
    office.Store().Save(name, Members(), kNew);
    EXPECT_TRUE(office.Store().Exists(name));
    EXPECT_FALSE(office.Store(8).Exists(name));
    EXPECT_THAT(Load(name).fields, SizeIs(3));
    office.Store().Delete(name);
    EXPECT_EQ(office.Table(), before);
  }
}

TEST_F(TemplateStoreTest, DoubleQuoteInANameIsStoredAsAnApostrophe) {
  EXPECT_EQ(PrepararTextoSQL("a\"b'c\"\""), "a''b'c''''");
  office.Store().Save("Los \"fijos\"", Members(), kNew);
  EXPECT_THAT(office.Store().Names(), ElementsAre("Los 'fijos'"));
  EXPECT_EQ(Failure([&] { Load("Los 'fijos'"); }), kQuerySyntax);
}

TEST_F(TemplateStoreTest, RefusesContentBeforeAnyStatementRuns) {
  office.Store().Save("Socios", Members(), kNew);
  const auto before = office.Table();
  const std::vector<std::pair<void (*)(TemplateContent&), long>> cases = {
      {[](TemplateContent& content) { content.fields[2].filtro = "x', 'y"; }, kQuerySyntax},
      {[](TemplateContent& content) { content.fields[2].filtro = "L''Hospitalet"; }, kQuerySyntax},
      {[](TemplateContent& content) { content.fields[1].campo = "d'entrada"; }, kQuerySyntax},
      {[](TemplateContent& content) { content.fields[0].tabla = "'"; }, kQuerySyntax},
      {[](TemplateContent& content) { content.fields[0].idCampo = 40000; }, kOverflow},
      {[](TemplateContent& content) { content.fields.clear(); }, kInvalidProcedureCall},
  };
  for (const auto& [change, number] : cases) {
    TemplateContent content = Members();
    change(content);
    EXPECT_EQ(Failure([&] { office.Store().Save("Socios", content, kReplace); }), number);
    EXPECT_EQ(office.Table(), before);
  }
  TemplateContent quoted = Members();
  quoted.fields[0].filtro = "{Provincia} = `\"Madrid\"´ \\ [x] %";
  office.Store().Save("Socios", quoted, kReplace);
  EXPECT_EQ(Load("Socios").fields[0].filtro, quoted.fields[0].filtro);
}

}  // namespace
}  // namespace velmar::templates
