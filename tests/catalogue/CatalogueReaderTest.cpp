#include "catalogue/CatalogueReader.h"

#include <gmock/gmock.h>

#include <array>

#include "catalogue/FieldLookup.h"
#include "host/interfaces/TestDatabases.h"

namespace velmar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kNodesRoutine = "fillTablasExportacion ()";

class CatalogueReader : public ::testing::Test, public NodeSink {
 protected:
  /// A good row, but for one column where one is named.
  void Insert(const std::string& id, const std::string& column = {}, const std::string& value = {}) {
    connection_->Execute(
        "INSERT INTO ExportacionCampos VALUES (" + id +
        ", 'nombre.interno', 'Campo ñ', '#', 'S AS [C]', 'O DESC', 'W', -3, '(REC) Recibos')");
    if (column.empty()) return;
    connection_->Execute("UPDATE ExportacionCampos SET " + column + " = " + value + " WHERE IDCampo = " + id);
  }

  /// The numbers of the fields that are read.
  std::vector<int> Load() {
    fields_ = {};
    LlenarColeccionCampos(*connection_, fields_, {}, report_);
    std::vector<int> ids;
    for (const cCampos& field : fields_) ids.push_back(field.IDCampo());
    return ids;
  }
  std::vector<std::string> Nodes() {
    LeerTablasExportacion(*connection_, *this, {}, report_);
    return std::exchange(nodes_, {});
  }
  /// What has been reported since the last time.
  std::string Reported() { return std::exchange(reported_, {}); }

  void BeginNodes() override { nodes_.push_back("begin"); }
  void AddNode(const std::string& literalTabla, std::int16_t idTabla) override {
    nodes_.push_back(literalTabla + "=" + std::to_string(idTabla));
  }
  void EndNodes() noexcept override { nodes_.push_back("end"); }

  testing::TestDatabases databases_;
  std::shared_ptr<ADODB::Connection> connection_ = databases_.Create("Gestion.mdb");
  Collection<cCampos> fields_;
  std::vector<std::string> nodes_;
  std::string reported_;
  const FailureReport report_ = [this](const RuntimeError& failure, const std::string& routine) {
    reported_ += routine + failure.Description();
  };
};

TEST_F(CatalogueReader, ReadsFieldsAndNodesInOrderUpToARowThatCannotBeRead) {
  EXPECT_THAT(Load(), IsEmpty());
  EXPECT_THAT(Reported(), ::testing::StartsWith("LlenarColeccionCampos ()"));
  EXPECT_THAT(Nodes(), IsEmpty());
  EXPECT_THAT(Reported(), ::testing::StartsWith(kNodesRoutine));
  connection_->Execute(
      "CREATE TABLE ExportacionCampos (IDCampo LONG, NombreInternoCampo TEXT(100), LiteralCampo TEXT(100), "
      "CaracterValorCampo TEXT(1), LiteralCampoSELECT TEXT(255), LiteralCampoORDERBY TEXT(255), "
      "LiteralCampoWHERE TEXT(255), IDTabla LONG, LiteralTabla TEXT(100))");
  Insert("32767", "CaracterValorCampo", "NULL");
  Insert("12");
  Insert("40", "LiteralTabla", "'(COL) Colaboradores'");
  Insert("-32768", "IDTabla", "5");
  EXPECT_THAT(Load(), ElementsAre(-32768, 12, 40, 32767));
  EXPECT_EQ(FindField(fields_, 12).CaracterValorCampo(), "#");
  EXPECT_EQ(FindField(fields_, 32767).CaracterValorCampo(), "");
  EXPECT_THROW(FindField(fields_, 13), RuntimeError);
  EXPECT_THAT(Nodes(),
              ElementsAre("begin", "(COL) Colaboradores=-3", "(REC) Recibos=-3", "(REC) Recibos=5", "end"));
  EXPECT_EQ(Reported(), "");
  const std::array<std::string, 3> faults[] = {
      {"LiteralCampo", "NULL", "Columna LiteralCampo "},
      {"IDTabla", "NULL", "Columna IDTabla "},
      {"IDTabla", "32768", "32768"},
      {"IDTabla", "-32769", "-32769"},
      {"IDCampo", "12", "« 12»"},
  };
  for (const auto& [column, value, told] : faults) {
    Insert("20", column, value);
    EXPECT_THAT(Load(), ElementsAre(-32768, 12));
    EXPECT_THAT(Reported(), ::testing::HasSubstr(told));
    EXPECT_EQ(Nodes().back(), "end");
    EXPECT_EQ(Reported().starts_with(kNodesRoutine), column == "IDTabla");
    connection_->Execute("DELETE FROM ExportacionCampos WHERE IDCampo = 20");
  }
}

}  // namespace
}  // namespace velmar
