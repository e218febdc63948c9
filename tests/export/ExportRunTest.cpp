#include "export/ExportRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "export/TestOffice.h"
#include "export/Workbook.h"
#include "platform/files/FileLock.h"
#include "platform/toolkit/NativeQueue.h"

namespace velmar::testing {
namespace {

using exporting::Outcome;

const std::string kFinished =
    "64 ¡El proceso de exportación a una hoja de Microsoft Excel ha terminado correctamente!\r"
    "El asistente de exportación se cerrará automaticamente.";

class RowCount : public ::testing::TestWithParam<long> {};

TEST_P(RowCount, EveryRowStandsOnceInItsSheetInOrder) {
  TestOffice office;
  office.AddPeople(GetParam());
  office.SelectPeople();
  ASSERT_EQ(office.Export(), Outcome::kFinished) << office.run->Failure().Description();
  EXPECT_EQ(office.Boxes(), std::vector{kFinished});

  const auto expected = office.ExpectedPeople();
  const std::vector<Sheet> sheets = ReadWorkbook(office.Path("Salida.xls"));
  ASSERT_EQ(sheets.size(), (expected.size() + 63999) / 64000);
  std::size_t at = 0;
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    const Sheet& sheet = sheets[i];
    EXPECT_EQ(sheet.name, "Hoja" + std::to_string(i + 1));
    ASSERT_EQ(sheet.rows.size(), std::min<std::size_t>(64000, expected.size() - at) + 1);
    EXPECT_EQ(sheet.rows[0], (std::vector<std::string>{"Codigo", "Nombre", "CuentaBancaria", "FechaAlta"}));
    for (std::size_t row = 1; row < sheet.rows.size(); ++row) ASSERT_EQ(sheet.rows[row], expected[at++]);
  }
  EXPECT_EQ(office.Files(), (std::vector<std::string>{"Gestion.mdb", "Informes.mdb", "Salida.xls"}));
  EXPECT_FALSE(office.window->Loaded());
  EXPECT_FALSE(office.run->IsRunning());
}

INSTANTIATE_TEST_SUITE_P(Boundaries, RowCount,
                         ::testing::Values(1, 7999, 8000, 8001, 64000, 64001, 70000, 128001));

const std::string kStagingFailed =
    "48 ¡Se ha producido un error en la sentencia sql de selección de registros";
const std::string kNoData =
    "48 ¡No se han seleccionado datos para la exportación!\rModifique algun dato en el filtro de selección.";

std::string Lost(long lost, long all) {
  return "48 ¡No se han podido escribir " + std::to_string(lost) + " filas de " + std::to_string(all) +
         "!\rMotivo: ";
}

/// The window as an export leaves it that has not come to its end.
void ExpectOpenWindow(TestOffice& office) {
  EXPECT_TRUE(office.window->Loaded());
  EXPECT_FALSE(office.run->IsRunning());
  EXPECT_EQ(office.window->tmrExportacion.Count(), 1);
  EXPECT_FALSE(office.window->tmrExportacion(0).Enabled());
  EXPECT_EQ(office.window->tmrExportacion(0).Tag(), "");
  EXPECT_FALSE(office.window->prgExportar.Visible());
  EXPECT_EQ(office.toolkit.MousePointer(), 0);
  EXPECT_TRUE(office.window->conAuxiliar == nullptr || office.window->conAuxiliar->State() == 0);
}

/// All that a second export in the same window must still do.
void ExpectExports(TestOffice& office, const std::string& file = "Salida.xls") {
  office.toolkit.ClearRecords();
  ASSERT_EQ(office.Export(file), Outcome::kFinished) << office.run->Failure().Description();
  EXPECT_EQ(office.Boxes(), std::vector{kFinished});
  std::vector<std::vector<std::string>> rows;
  for (Sheet& sheet : ReadWorkbook(office.Path(file)))
    rows.insert(rows.end(), sheet.rows.begin() + 1, sheet.rows.end());
  EXPECT_EQ(rows, office.ExpectedPeople());
  EXPECT_TRUE(office.WorkFiles().empty());
}

TEST(ExportRun, DialogThatIsCancelledTouchesNothing) {
  TestOffice office;
  office.AddPeople(3);
  office.SelectPeople();
  for (const char* name : {"Salida.xls", "ExportacionAux.mdb"}) office.folder.Touch(name);
  const auto before = office.Files();
  office.toolkit.AnswerFile(std::nullopt);
  EXPECT_EQ(office.run->ExportarDatos(office.selection, office.catalogue), Outcome::kDialogCancelled);
  EXPECT_TRUE(office.Boxes().empty());
  EXPECT_EQ(office.Files(), before);
  ExpectOpenWindow(office);
}

struct StagingFailure {
  const char* what;
  std::function<void(TestOffice&)> arrange;
  bool workFileStays;
  /// Of the second message, where the selection is not to blame.
  const char* reason = nullptr;
};

TEST(ExportRun, StagingThatFailsIsToldAndLosesTheOldTargetOnly) {
  const std::string node = "(COL) Colaboradores";
  const StagingFailure failures[] = {
      {"a filter without its field",
       [&](TestOffice& o) { o.Select(node, "c.x", "Colaboradores.NIF AS NIF", "{NIF} = `1´", ""); }, true},
      {"a filter outside the language",
       [&](TestOffice& o) {
         o.Select(node, "c.x", "Colaboradores.NIF AS NIF", "{NIF} [Parecido a] `1´", "Colaboradores.NIF");
       },
       true},
      {"a column that does not exist",
       [&](TestOffice& o) { o.Select(node, "c.x", "Colaboradores.Nada AS Nada"); }, true},
      {"two columns of one name",
       [&](TestOffice& o) { o.Select(node, "c.x", "Colaboradores.NIF AS nombre"); }, true},
      {"a field that the catalogue lacks",
       [&](TestOffice& o) {
         o.selection.rows.push_back({node, "x", "", 999});
       },
       true},
      {"no work database",
       [](TestOffice& o) { std::filesystem::create_directory(o.Path("ExportacionAux.mdb")); }, true,
       "ExportacionAux.mdb"},
      {"recoding without its column",
       [&](TestOffice& o) { o.Select(node, "c.x", "Colaboradores.Sexo AS Otro"); }, true},
      {"no pending tables",
       [&](TestOffice& o) {
         o.Run("DROP TABLE recibospendientes");
         o.Select("(REC) Recibos", "recibos.importe", "Recibos.Importe AS Importe");
       },
       true},
  };
  for (const StagingFailure& failure : failures) {
    SCOPED_TRACE(failure.what);
    TestOffice office;
    office.AddPeople(3);
    office.SelectPeople();
    failure.arrange(office);
    office.folder.Touch("Salida.xls");
    office.Run("INSERT INTO Modelo182Hacienda (codColaborador) VALUES (1)");
    EXPECT_EQ(office.Export(), Outcome::kStagingFailed);
    const auto boxes = office.Boxes();
    EXPECT_EQ(boxes.at(0), kStagingFailed);
    EXPECT_EQ(boxes.size(), failure.reason == nullptr ? 1U : 2U);
    if (failure.reason != nullptr) {
      EXPECT_NE(boxes.back().find(failure.reason), std::string::npos);
    }
    EXPECT_NE(office.run->Failure().Description(), "");
    EXPECT_FALSE(office.folder.Has("Salida.xls"));
    EXPECT_EQ(office.folder.Has("ExportacionAux.mdb"), failure.workFileStays);
    EXPECT_EQ(office.Count("Colaboradores"), 3);
    EXPECT_EQ(office.Count("Modelo182Hacienda"), 0);
    ExpectOpenWindow(office);
  }
}

TEST(ExportRun, FilterThatCannotBeTranslatedIsReported) {
  TestOffice office;
  office.AddPeople(3);
  office.Select("(COL) Colaboradores", "c.nif", "Colaboradores.NIF AS NIF", "{NIF} [Parecido a] `1´",
                "Colaboradores.NIF");
  EXPECT_EQ(office.Export(), Outcome::kStagingFailed);
  ASSERT_EQ(office.reported.size(), 1U);
  EXPECT_EQ(office.reported[0].rfind("GenerarSQLWHERE ()", 0), 0U);
}

TEST(ExportRun, SelectionWithoutRowsIsToldAndTheWindowStays) {
  TestOffice office;
  office.AddPeople(3);
  office.SelectPeople();
  office.selection.rows[0].filtro = "X";
  office.Select("(COL) Colaboradores", "c.x", "Colaboradores.NIF AS NIF", "{Codigo} > `3´",
                "Colaboradores.IDColaborador", "");
  office.selection.rows[0].filtro.clear();
  EXPECT_EQ(office.Export(), Outcome::kNoData);
  EXPECT_EQ(office.Boxes(), std::vector{kNoData});
  EXPECT_EQ(office.WorkFiles(), std::vector<std::string>{"ExportacionAux.mdb"});
  ExpectOpenWindow(office);
  office.selection.rows.pop_back();
  ExpectExports(office);
}

TEST(ExportRun, FirstRowWithoutAFirstValueIsData) {
  TestOffice office;
  office.Run("INSERT INTO Colaboradores (IDColaborador) VALUES (1)");
  office.Select("(COL) Colaboradores", "c.nif", "Colaboradores.NIF AS NIF");
  ASSERT_EQ(office.Export(), Outcome::kFinished) << office.run->Failure().Description();
}

TEST(ExportRun, RefusedTargetLeavesAllAsItWas) {
  TestOffice office;
  office.AddPeople(3);
  office.SelectPeople();
  for (const char* name : {"Gestion.mdb", "Informes.mdb", "no hay/Salida.xls", "Salida.xls"}) {
    SCOPED_TRACE(name);
    office.folder.Touch("Salida.xls");
    // In the last case another wizard is at work in the folder.
    std::optional<files::FileLock> other;
    if (std::string_view(name) == "Salida.xls")
      other = files::FileLock::TryTake(office.Path("VelmarExportacion.lock"));
    const auto before = office.Files();
    EXPECT_EQ(office.Export(office.folder / name), Outcome::kRefused);
    const auto boxes = office.Boxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].rfind("48 ", 0), 0U);
    EXPECT_EQ(office.Files(), before);
    ExpectOpenWindow(office);
  }
  ExpectExports(office);
}

TEST(ExportRun, BlockThatCannotBeWorkedOnIsLeftOutAndCounted) {
  TestOffice office;
  office.AddPeople(20000);
  office.SelectPeople();
  bool fails = true;
  office.codec->onDecode = [&](long decoded) {
    if (fails && decoded == 9000) throw RuntimeError(kTypeMismatch, "La cuenta no es válida.");
  };
  ASSERT_EQ(office.Export(), Outcome::kIncomplete);
  const auto boxes = office.Boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0], Lost(8000, 20000) + "La cuenta no es válida.\rEl archivo " + office.Path("Salida.xls") +
                          " está incompleto: no lo utilice. Corrija la causa y vuelva a exportar.");
  EXPECT_TRUE(office.WorkFiles().empty());
  ExpectOpenWindow(office);
  // What could be written is there, in order.
  auto expected = office.ExpectedPeople();
  expected.erase(expected.begin() + 8000, expected.begin() + 16000);
  auto sheets = ReadWorkbook(office.Path("Salida.xls"));
  ASSERT_EQ(sheets.size(), 1U);
  sheets[0].rows.erase(sheets[0].rows.begin());
  EXPECT_EQ(sheets[0].rows, expected);
  fails = false;
  ExpectExports(office);
}

TEST(ExportRun, PartThatCannotBeMadeIsLeftOutAndCounted) {
  TestOffice office;
  office.AddPeople(16001);
  office.SelectPeople();
  std::filesystem::create_directory(office.Path("ExportacionExcel0.mdb"));
  ASSERT_EQ(office.Export(), Outcome::kIncomplete);
  EXPECT_EQ(office.Boxes()[0].rfind(Lost(8000, 16001), 0), 0U);
  // The sheet is made by the next block.
  const auto sheets = ReadWorkbook(office.Path("Salida.xls"));
  ASSERT_EQ(sheets.size(), 1U);
  EXPECT_EQ(sheets[0].name, "Hoja1");
  EXPECT_EQ(sheets[0].rows.size(), 8002U);
  std::filesystem::remove(office.Path("ExportacionExcel0.mdb"));
  ExpectExports(office);
}

TEST(ExportRun, BlockThatCannotBeWrittenIsLeftOutAndCounted) {
  TestOffice office;
  office.Run("CREATE TABLE Modelo (Nombre MEMO)");
  office.AddPeople(8001);
  office.SelectPeople();
  office.Run("ALTER TABLE Colaboradores ADD COLUMN Notas MEMO");
  // A text that no cell can hold, in the last block.
  office.Run("UPDATE Colaboradores SET Notas = '" + std::string(40000, 'x') + "' WHERE IDColaborador = 8001");
  office.Select("(COL) Colaboradores", "c.notas", "Colaboradores.Notas AS Notas");
  ASSERT_EQ(office.Export(), Outcome::kIncomplete);
  EXPECT_EQ(office.Boxes()[0].rfind(Lost(1, 8001), 0), 0U);
  EXPECT_TRUE(office.WorkFiles().empty());
  EXPECT_EQ(ReadWorkbook(office.Path("Salida.xls"))[0].rows.size(), 8001U);
}

TEST(ExportRun, CancelLeavesNoTraceAtAnyStage) {
  using exporting::RunStage;
  TestOffice office;
  office.AddPeople(8001);
  office.SelectPeople();
  for (const RunStage stage : {RunStage::kStaging, RunStage::kCutting, RunStage::kPostProcessing,
                               RunStage::kSheets, RunStage::kClosing}) {
    SCOPED_TRACE(static_cast<int>(stage));
    office.onStage = [&](RunStage begun) {
      EXPECT_TRUE(office.run->IsRunning());
      if (begun == stage) office.run->RequestCancel();
    };
    EXPECT_EQ(office.Export(), Outcome::kCancelled);
    EXPECT_TRUE(office.Boxes().empty());
    EXPECT_EQ(office.Files(), (std::vector<std::string>{"Gestion.mdb", "Informes.mdb"}));
    ExpectOpenWindow(office);
  }
  office.onStage = {};
  office.codec->decoded = 0;
  office.codec->onDecode = [&](long decoded) {
    if (decoded == 100) office.run->RequestCancel();
  };
  EXPECT_EQ(office.Export(), Outcome::kCancelled);
  EXPECT_LT(office.codec->decoded, 110) << "goes on although cancelled";
  EXPECT_EQ(office.Files(), (std::vector<std::string>{"Gestion.mdb", "Informes.mdb"}));
  ExpectOpenWindow(office);
  office.codec->onDecode = {};
  ExpectExports(office);
  office.run->RequestCancel();  // nothing is in progress
  office.window->Load();
  ExpectExports(office);
}

/// Cancels the run in the first turn of the loop.
class CancelAtOnce : public toolkit::NativeQueue {
 public:
  explicit CancelAtOnce(TestOffice& office) : office_(office) {}
  bool Process() override {
    office_.run->RequestCancel();
    return true;
  }

 private:
  TestOffice& office_;
};

TEST(ExportRun, CancelBeforeTheFolderIsItsOwnLeavesAnotherWizardsFiles) {
  TestOffice office;
  office.AddPeople(3);
  office.SelectPeople();
  for (const char* name : {"ExportacionAux.mdb", "ExportacionExcel0.mdb"}) office.folder.Touch(name);
  const auto other = files::FileLock::TryTake(office.Path("VelmarExportacion.lock"));
  const auto before = office.Files();
  CancelAtOnce queue(office);
  office.clock.tick = std::chrono::milliseconds(10);
  office.toolkit.Loop().Native(&queue);
  EXPECT_EQ(office.Export(), Outcome::kCancelled);
  office.toolkit.Loop().Native(nullptr);
  EXPECT_EQ(office.Files(), before);
  ExpectOpenWindow(office);
}

TEST(ExportRun, SecondExportDuringTheFirstIsRefusedWithABeep) {
  TestOffice office;
  office.AddPeople(10);
  office.SelectPeople();
  office.codec->onDecode = [&](long decoded) {
    if (decoded == 3) {
      office.toolkit.ClearRecords();
      EXPECT_EQ(office.run->ExportarDatos(office.selection, office.catalogue), Outcome::kRefused);
      EXPECT_EQ(office.toolkit.Records().size(), 1U);
      EXPECT_EQ(office.toolkit.Records()[0].kind, toolkit::Record::Kind::kBeep);
    }
  };
  ExpectExports(office);
}

TEST(ExportRun, LeftoversOfEarlierRunsGo) {
  TestOffice office;
  office.AddPeople(8001);
  office.SelectPeople();
  for (const char* name :
       {"ExportacionAux.mdb", "exportacionexcel1.mdb", "Exportacion vieja.MDB", "Salida.xls"}) {
    office.folder.Touch(name);
  }
  office.Run("SELECT IDColaborador INTO ExportacionExcel FROM Colaboradores");
  ExpectExports(office);
  EXPECT_EQ(office.Files(), (std::vector<std::string>{"Gestion.mdb", "Informes.mdb", "Salida.xls"}));
  EXPECT_ANY_THROW(office.Run("SELECT * FROM ExportacionExcel"));
}

/// Receipts of five people, pending ones among them; some rows of the second kind repeat rows of the first.
void AddReceipts(TestOffice& office) {
  for (int id = 1; id <= 5; ++id) {
    office.Run("INSERT INTO Colaboradores (IDColaborador, Nombre, Sexo, Juridico) VALUES (" +
               std::to_string(id) + ", '" + (id == 5 ? "Recibos de Ana" : "Ana") + "', " +
               std::to_string(id % 3) + ", " + (id == 4 ? "True" : "False") + ")");
    office.Run("INSERT INTO Donativos (IDDonativo, CodColaborador, CodTipoDonativo) VALUES (" +
               std::to_string(id) + ", " + std::to_string(id) + ", 1)");
  }
  const auto add = [&](const char* receipts, const char* payments, const char* key, const char* paymentKey,
                       int id, int person, int amount) {
    const std::string number = std::to_string(id);
    office.Run(std::string("INSERT INTO ") + receipts + " (" + key +
               ", CodColaborador, Importe, Eliminado) VALUES (" + number + ", " + std::to_string(person) +
               ", " + std::to_string(amount) + ", False)");
    office.Run(std::string("INSERT INTO ") + payments + " (" + paymentKey +
               ", CodRecibo, CodDonativo, Importe) VALUES (" + number + ", " + number + ", " +
               std::to_string(person) + ", " + std::to_string(amount) + ")");
  };
  int id = 0;
  for (const auto& [person, amount] : {std::pair{5, 50}, {1, 10}, {4, 40}, {1, 10}, {2, 20}}) {
    add("Recibos", "Cobros", "IDRecibo", "IDCobro", ++id, person, amount);
  }
  for (const auto& [person, amount] : {std::pair{3, 30}, {1, 10}, {4, 41}, {5, 50}, {3, 30}, {5, 51}}) {
    add("recibospendientes", "cobrospendientes", "IDReciboPendiente", "IDCobroPendiente", ++id, person,
        amount);
  }
}

TEST(ExportRun, PendingReceiptsComeBehindRecodedAndNeverTwice) {
  // The names of the folder stand in the statement too, and must not be rewritten there.
  TestOffice office("Recibos y Cobros, select idrecibo");
  AddReceipts(office);
  const std::string col = "(COL) Colaboradores";
  office.Select(col, "colaboradores.nombre", "Colaboradores.Nombre AS Nombre",
                "{Nombre} [Que contenga] `ANA´", "Colaboradores.Nombre");
  office.Select(col, "colaboradores.sexo", "Colaboradores.Sexo & '' AS Sexo");
  office.Select(col, "colaboradores.juridico", "Colaboradores.Juridico & '' AS TipoEntidad");
  office.Select("(REC) Recibos", "recibos.importe", "Recibos.Importe AS Importe");
  office.OrderBy("Recibos.Importe DESC");
  ASSERT_EQ(office.Export(), Outcome::kFinished) << office.run->Failure().Description();
  const std::vector<std::vector<std::string>> expected{
      {"Nombre", "Sexo", "TipoEntidad", "Importe"},
      {"Recibos de Ana", "Mujer", "Física", "50"},
      {"Ana", "Hombre", "Jurídica", "40"},
      {"Ana", "Mujer", "Física", "20"},
      {"Ana", "Hombre", "Física", "10"},
      {"Recibos de Ana", "Mujer", "Física", "51"},
      {"Ana", "Hombre", "Jurídica", "41"},
      {"Ana", "", "Física", "30"},
  };
  EXPECT_EQ(ReadWorkbook(office.Path("Salida.xls"))[0].rows, expected);
}

}  // namespace
}  // namespace velmar::testing
