#include "catalogue/CatalogueReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "catalogue/FieldLookup.h"
#include "host/interfaces/TestDatabases.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class NotedNodes : public NodeSink {
 public:
  void BeginNodes() override { notes.push_back("begin"); }
  void AddNode(const std::string& literalTabla, std::int16_t idTabla) override {
    notes.push_back(literalTabla + "=" + std::to_string(idTabla));
  }
  void EndNodes() noexcept override { notes.push_back("end"); }

  std::vector<std::string> notes;
};

class CatalogueReader : public ::testing::Test {
 protected:
  void CreateTable() {
    connection_->Execute(
        "CREATE TABLE ExportacionCampos (IDCampo LONG, NombreInternoCampo TEXT(100), LiteralCampo TEXT(100), "
        "CaracterValorCampo TEXT(1), LiteralCampoSELECT TEXT(255), LiteralCampoORDERBY TEXT(255), "
        "LiteralCampoWHERE TEXT(255), IDTabla LONG, LiteralTabla TEXT(100))");
  }

  void Insert(const std::string& values) {
    connection_->Execute("INSERT INTO ExportacionCampos VALUES (" + values + ")");
  }

  void InsertGood(int id, const std::string& table = "1, '(COL) Colaboradores'") {
    Insert(std::to_string(id) + ", 'colaboradores.x', 'Campo', '#', 'S', 'O', 'W', " + table);
  }

  std::vector<std::int16_t> Load() {
    LlenarColeccionCampos(
        *connection_, fields_, [this] { ++turns_; }, Report());
    std::vector<std::int16_t> ids;
    for (const cCampos& field : fields_) ids.push_back(field.IDCampo());
    return ids;
  }

  FailureReport Report() {
    return [this](const RuntimeError& failure, const std::string& routine) {
      reported_.push_back(routine);
      description_ = failure.Description();
    };
  }

  testing::TestDatabases databases_;
  std::shared_ptr<ADODB::Connection> connection_ = databases_.Create("Gestion.mdb");
  Collection<cCampos> fields_;
  NotedNodes nodes_;
  int turns_ = 0;
  std::vector<std::string> reported_;
  std::string description_;
};

TEST_F(CatalogueReader, LoadsAllColumnsInTheOrderOfTheNumbers) {
  CreateTable();
  InsertGood(32767);
  Insert(
      "12, 'recibos.cuenta', 'Cuenta ñ', NULL, 'Cuentas.Cuenta AS [C]', 'Cuentas.Cuenta DESC', "
      "'Cuentas.Cuenta', "
      "-3, '(REC) Recibos'");
  InsertGood(-32768);
  EXPECT_THAT(Load(), ElementsAre(-32768, 12, 32767));
  EXPECT_EQ(turns_, 1);
  EXPECT_THAT(reported_, IsEmpty());

  const cCampos& field = FindField(fields_, 12);
  EXPECT_EQ(field.NombreInternoCampo(), "recibos.cuenta");
  EXPECT_EQ(field.LiteralCampo(), "Cuenta ñ");
  EXPECT_EQ(field.CaracterValorCampo(), "");
  EXPECT_EQ(field.LiteralCampoSELECT(), "Cuentas.Cuenta AS [C]");
  EXPECT_EQ(field.LiteralCampoORDERBY(), "Cuentas.Cuenta DESC");
  EXPECT_EQ(field.LiteralCampoWHERE(), "Cuentas.Cuenta");
  EXPECT_EQ(field.IDTabla(), -3);
  EXPECT_EQ(field.LiteralTabla(), "(REC) Recibos");
  EXPECT_EQ(FindField(fields_, 32767).CaracterValorCampo(), "#");
}

TEST_F(CatalogueReader, StopsAtTheFirstRowThatCannotBeReadAndKeepsThoseBefore) {
  const struct {
    const char* row;
    const char* told;
  } cases[] = {
      {"3, NULL, 'Campo', '#', 'S', 'O', 'W', 1, 'T'", "NombreInternoCampo"},
      {"3, 'a.b', NULL, '#', 'S', 'O', 'W', 1, 'T'", "Columna LiteralCampo "},
      {"3, 'a.b', 'Campo', '#', NULL, 'O', 'W', 1, 'T'", "LiteralCampoSELECT"},
      {"3, 'a.b', 'Campo', '#', 'S', NULL, 'W', 1, 'T'", "LiteralCampoORDERBY"},
      {"3, 'a.b', 'Campo', '#', 'S', 'O', NULL, 1, 'T'", "LiteralCampoWHERE"},
      {"3, 'a.b', 'Campo', '#', 'S', 'O', 'W', NULL, 'T'", "IDTabla"},
      {"3, 'a.b', 'Campo', '#', 'S', 'O', 'W', 32768, 'T'", "32768"},
      {"3, 'a.b', 'Campo', '#', 'S', 'O', 'W', 1, NULL", "LiteralTabla"},
      {"2, 'a.b', 'Campo', '#', 'S', 'O', 'W', 1, 'T'", "« 2»"},
  };
  CreateTable();
  for (const auto& test : cases) {
    SCOPED_TRACE(test.row);
    connection_->Execute("DELETE FROM ExportacionCampos");
    fields_ = {};
    reported_.clear();
    InsertGood(4);
    InsertGood(2);
    Insert(test.row);
    InsertGood(1);
    EXPECT_THAT(Load(), ElementsAre(1, 2));
    EXPECT_THAT(reported_, ElementsAre("LlenarColeccionCampos ()"));
    EXPECT_THAT(description_, HasSubstr(test.told));
  }

  for (const char* id : {"NULL", "-32769"}) {
    connection_->Execute("DELETE FROM ExportacionCampos");
    fields_ = {};
    reported_.clear();
    InsertGood(1);
    Insert(std::string(id) + ", 'a.b', 'Campo', '#', 'S', 'O', 'W', 1, 'T'");
    EXPECT_THAT(Load(), IsEmpty()) << id;
    EXPECT_THAT(reported_, ElementsAre("LlenarColeccionCampos ()")) << id;
  }
}

TEST_F(CatalogueReader, AMissingTableIsReportedByBothRoutines) {
  EXPECT_THAT(Load(), IsEmpty());
  LeerTablasExportacion(*connection_, nodes_, {}, Report());
  EXPECT_THAT(reported_, ElementsAre("LlenarColeccionCampos ()", "fillTablasExportacion ()"));
  EXPECT_THAT(nodes_.notes, IsEmpty());
}

TEST_F(CatalogueReader, NodesAreThePairsOfNumberAndName) {
  CreateTable();
  LeerTablasExportacion(
      *connection_, nodes_, [this] { ++turns_; }, Report());
  EXPECT_THAT(nodes_.notes, ElementsAre("begin", "end"));
  EXPECT_EQ(turns_, 1);
  EXPECT_THAT(Load(), IsEmpty());

  InsertGood(1, "5, '(REC) Recibos'");
  InsertGood(2, "1, '(COL) Colaboradores'");
  InsertGood(3, "1, '(COL) Colaboradores'");
  InsertGood(4, "1, '(DON) Donativos/Suscripciones'");
  nodes_.notes.clear();
  LeerTablasExportacion(*connection_, nodes_, {}, Report());
  EXPECT_THAT(nodes_.notes, ElementsAre("begin", "(COL) Colaboradores=1", "(DON) Donativos/Suscripciones=1",
                                        "(REC) Recibos=5", "end"));
  EXPECT_THAT(reported_, IsEmpty());

  InsertGood(5, "40000, '(MOD) Modelo182'");
  nodes_.notes.clear();
  LeerTablasExportacion(*connection_, nodes_, {}, Report());
  EXPECT_THAT(nodes_.notes,
              ElementsAre("begin", "(COL) Colaboradores=1", "(DON) Donativos/Suscripciones=1", "end"));
  EXPECT_THAT(reported_, ElementsAre("fillTablasExportacion ()"));
}

}  // namespace
}  // namespace velmar
