#include "catalogue/CatalogueReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "catalogue/FieldLookup.h"
#include "host/interfaces/TestDatabases.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class CatalogueReader : public ::testing::Test, public NodeSink {
 protected:
  void CreateTable() {
    connection_->Execute(
        "CREATE TABLE ExportacionCampos (IDCampo LONG, NombreInternoCampo TEXT(100), LiteralCampo TEXT(100), "
        "CaracterValorCampo TEXT(1), LiteralCampoSELECT TEXT(255), LiteralCampoORDERBY TEXT(255), "
        "LiteralCampoWHERE TEXT(255), IDTabla LONG, LiteralTabla TEXT(100))");
  }
  /// A good row, but for one column where one is named.
  void Insert(const std::string& id, const std::string& column = "IDCampo", const std::string& value = {}) {
    connection_->Execute(
        "INSERT INTO ExportacionCampos VALUES (" + id +
        ", 'nombre.interno', 'Campo ñ', '#', 'S AS [C]', 'O DESC', 'W', -3, '(REC) Recibos')");
    if (value.empty()) return;
    connection_->Execute("UPDATE ExportacionCampos SET " + column + " = " + value + " WHERE IDCampo = " + id);
  }

  std::vector<std::int16_t> Load() {
    fields_ = {};
    reported_.clear();
    LlenarColeccionCampos(*connection_, fields_, turn_, report_);
    std::vector<std::int16_t> ids;
    for (const cCampos& field : fields_) ids.push_back(field.IDCampo());
    return ids;
  }
  std::vector<std::string> Nodes() {
    nodes_.clear();
    reported_.clear();
    LeerTablasExportacion(*connection_, *this, turn_, report_);
    return nodes_;
  }

  void BeginNodes() override { nodes_.push_back("begin"); }
  void AddNode(const std::string& literalTabla, std::int16_t idTabla) override {
    nodes_.push_back(literalTabla + "=" + std::to_string(idTabla));
  }
  void EndNodes() noexcept override { nodes_.push_back("end"); }

  testing::TestDatabases databases_;
  std::shared_ptr<ADODB::Connection> connection_ = databases_.Create("Gestion.mdb");
  Collection<cCampos> fields_;
  std::vector<std::string> nodes_;
  int turns_ = 0;
  const std::function<void()> turn_ = [this] { ++turns_; };
  std::vector<std::string> reported_;
  std::string description_;
  const FailureReport report_ = [this](const RuntimeError& failure, const std::string& routine) {
    reported_.push_back(routine);
    description_ = failure.Description();
  };
};

TEST_F(CatalogueReader, LoadsAllColumnsInTheOrderOfTheNumbers) {
  CreateTable();
  Insert("32767", "CaracterValorCampo", "NULL");
  Insert("12");
  Insert("-32768");
  EXPECT_THAT(Load(), ElementsAre(-32768, 12, 32767));
  EXPECT_EQ(turns_, 1);
  EXPECT_THAT(reported_, IsEmpty());

  const cCampos& field = FindField(fields_, 12);
  EXPECT_EQ(field.NombreInternoCampo(), "nombre.interno");
  EXPECT_EQ(field.LiteralCampo(), "Campo ñ");
  EXPECT_EQ(field.CaracterValorCampo(), "#");
  EXPECT_EQ(field.LiteralCampoSELECT(), "S AS [C]");
  EXPECT_EQ(field.LiteralCampoORDERBY(), "O DESC");
  EXPECT_EQ(field.LiteralCampoWHERE(), "W");
  EXPECT_EQ(field.IDTabla(), -3);
  EXPECT_EQ(field.LiteralTabla(), "(REC) Recibos");
  EXPECT_EQ(FindField(fields_, 32767).CaracterValorCampo(), "");
  EXPECT_THROW(FindField(fields_, 13), RuntimeError);
}

TEST_F(CatalogueReader, StopsAtTheFirstRowThatCannotBeReadAndKeepsThoseBefore) {
  CreateTable();
  Insert("1");
  Insert("2");
  Insert("4");
  const std::array<const char*, 3> faults[] = {
      {"NombreInternoCampo", "NULL", "NombreInternoCampo"},
      {"LiteralCampo", "NULL", "Columna LiteralCampo "},
      {"LiteralCampoSELECT", "NULL", "LiteralCampoSELECT"},
      {"LiteralCampoORDERBY", "NULL", "LiteralCampoORDERBY"},
      {"LiteralCampoWHERE", "NULL", "LiteralCampoWHERE"},
      {"IDTabla", "NULL", "IDTabla"},
      {"IDTabla", "32768", "32768"},
      {"LiteralTabla", "NULL", "LiteralTabla"},
      {"IDCampo", "2", "« 2»"},
  };
  for (const auto& [column, value, told] : faults) {
    SCOPED_TRACE(column);
    Insert("3", column, value);
    EXPECT_THAT(Load(), ElementsAre(1, 2));
    EXPECT_THAT(reported_, ElementsAre("LlenarColeccionCampos ()"));
    EXPECT_THAT(description_, HasSubstr(told));
    connection_->Execute("DELETE FROM ExportacionCampos WHERE IDCampo = 3");
  }
  Insert("-32769");
  EXPECT_THAT(Load(), IsEmpty());
  EXPECT_THAT(reported_, ElementsAre("LlenarColeccionCampos ()"));
}

TEST_F(CatalogueReader, AMissingTableIsReportedByBothRoutines) {
  EXPECT_THAT(Load(), IsEmpty());
  EXPECT_THAT(reported_, ElementsAre("LlenarColeccionCampos ()"));
  EXPECT_THAT(Nodes(), IsEmpty());
  EXPECT_THAT(reported_, ElementsAre("fillTablasExportacion ()"));
}

TEST_F(CatalogueReader, NodesAreThePairsOfNumberAndName) {
  CreateTable();
  EXPECT_THAT(Nodes(), ElementsAre("begin", "end"));
  EXPECT_EQ(turns_, 1);
  Insert("1");
  Insert("2", "LiteralTabla", "'(COL) Colaboradores'");
  Insert("3", "LiteralTabla", "'(COL) Colaboradores'");
  Insert("4", "IDTabla", "5");
  EXPECT_THAT(Nodes(),
              ElementsAre("begin", "(COL) Colaboradores=-3", "(REC) Recibos=-3", "(REC) Recibos=5", "end"));
  EXPECT_THAT(reported_, IsEmpty());

  Insert("5", "IDTabla", "40000");
  EXPECT_THAT(Nodes().back(), "end");
  EXPECT_THAT(nodes_, ::testing::Contains("(COL) Colaboradores=-3"));
  EXPECT_THAT(reported_, ElementsAre("fillTablasExportacion ()"));
}

}  // namespace
}  // namespace velmar
