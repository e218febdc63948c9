#include "export/ExportRun.h"

#include <gtest/gtest.h>

#include <tuple>

#include "export/TestOffice.h"
#include "platform/error/OperationObserver.h"
#include "platform/excel/Workbook.h"
#include "platform/files/FileLock.h"

namespace velmar::testing {
namespace {

using enum exporting::Outcome;
using exporting::RunStage;

constexpr const char* kCol = TestOffice::kCol;
constexpr const char* kRec = "(REC) Recibos";
const FileNames kOnlyDatabases{"Gestion.mdb", "Informes.mdb"};
const FileNames kWithWorkbook{"Gestion.mdb", "Informes.mdb", "Salida.xls"};
const Names kFinishedBox{
    "64 ¡El proceso de exportación a una hoja de Microsoft Excel ha terminado correctamente!\r"
    "El asistente de exportación se cerrará automaticamente."};
const Names kNoDataBox{
    "48 ¡No se han seleccionado datos para la exportación!\rModifique algun dato en el filtro de selección."};

class ExportRun : public ::testing::Test {
 protected:
  ExportRun() { office.SelectPeople(); }

  /// The window as an export leaves it that has not come to its end.
  void ExpectOpenWindow() {
    EXPECT_TRUE(office.window->Loaded());
    EXPECT_FALSE(office.run.IsRunning());
    EXPECT_EQ(office.window->tmrExportacion.Count(), 1);
    EXPECT_FALSE(office.window->tmrExportacion(0).Enabled());
    EXPECT_EQ(office.window->tmrExportacion(0).Tag(), "");
    EXPECT_FALSE(office.window->prgExportar.Visible());
    EXPECT_EQ(office.toolkit.MousePointer(), 0);
    EXPECT_TRUE(office.window->conAuxiliar == nullptr || office.window->conAuxiliar->State() == 0);
  }
  /// All that an export must do, whatever became of those before it in the same window.
  void ExpectExports() {
    office.toolkit.ClearRecords();
    ASSERT_EQ(office.Export(), kFinished) << office.run.Failure().Description();
    EXPECT_EQ(office.run.Failure().Number(), 0);
    EXPECT_EQ(office.Boxes(), kFinishedBox);
    EXPECT_EQ(office.Exported(), office.ExpectedPeople());
    EXPECT_EQ(office.Files(), kWithWorkbook);
    EXPECT_FALSE(office.window->Loaded());
  }

  TestOffice office;
};

class RowCount : public ExportRun, public ::testing::WithParamInterface<std::size_t> {};

TEST_P(RowCount, EveryRowStandsOnceInItsSheetInOrder) {
  office.AddPeople(static_cast<long>(GetParam()));
  ExpectExports();
  Names names;
  for (const Table& sheet : sample::ReadWorkbook(office.Path("Salida.xls"))) {
    EXPECT_EQ(sheet[0], (Names{"Codigo", "Nombre", "CuentaBancaria", "Fecha de alta"}));
    EXPECT_EQ(sheet.size(), std::min<std::size_t>(64000, GetParam() - 64000 * names.size()) + 1);
    names.push_back("Hoja" + std::to_string(names.size() + 1));
  }
  EXPECT_EQ(excel::Workbook(office.Path("Salida.xls")).SheetNames(), names);
}

INSTANTIATE_TEST_SUITE_P(Boundaries, RowCount,
                         ::testing::Values(1, 7999, 8000, 8001, 64000, 64001, 70000, 128001));

TEST_F(ExportRun, RefusedTargetLeavesAllAsItWas) {
  office.AddPeople(3);
  office.Touch({"Salida.xls", "Salida2.xls", "a1.xls", "Vista.xls", "~$Vista.xls", "ExportacionAux.mdb"});
  std::filesystem::create_directory(office.Path("Mes.xls"));
  std::filesystem::create_symlink("nada", office.Path("Enlace.xls"));
  const FileNames before = office.Files();
  const std::pair<const char*, const char*> cases[] = {
      {"a?.xls", "caracteres"},
      {"*.xls", "caracteres"},
      {"SALIDA.xls", "mayúsculas"},
      {"informes.MDB", "aplicación"},
      {"no hay/Salida.xls", "carpeta"},
      {"Mes.xls", "el de una carpeta"},
      {"Enlace.xls", "enlace"},
      {"Vista.xls", "~$Vista.xls"},
      {"exportacionExcel7.MDB", "de trabajo"},
  };
  for (const auto& [name, reason] : cases) {
    SCOPED_TRACE(name);
    EXPECT_EQ(office.Export(name), kRefused);
    const Names boxes = office.Boxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NE(boxes[0].find(office.Path(name)), std::string::npos) << boxes[0];
    EXPECT_NE(boxes[0].find(reason), std::string::npos) << boxes[0];
    EXPECT_EQ(office.Files(), before);
    ExpectOpenWindow();
  }
  office.toolkit.AnswerFile(std::nullopt);
  EXPECT_EQ(office.run.ExportarDatos(office.selection, office.catalogue), kDialogCancelled);
  EXPECT_TRUE(office.Boxes().empty());
  EXPECT_EQ(office.Files(), before);
  EXPECT_EQ(office.Export(), kFinished) << office.run.Failure().Description();
  EXPECT_TRUE(std::filesystem::exists(office.Path("Salida2.xls")));
}

TEST_F(ExportRun, FilesOfAnotherWizardAreLeftAloneAndThoseOfEarlierRunsGo) {
  office.AddPeople(8001);
  office.Touch({"Salida.xls", "ExportacionAux.mdb", "exportacionexcel1.mdb", "Exportacion vieja.MDB"});
  auto other = files::FileLock::TryTake(office.Path("VelmarExportacion.lock"));
  const FileNames before = office.Files();
  EXPECT_EQ(office.Export(), kRefused);
  EXPECT_EQ(office.Files(), before);
  // Cancelled before it could be refused.
  office.toolkit.Loop().Post([this] { office.run.RequestCancel(); });
  EXPECT_EQ(office.Export(), kCancelled);
  EXPECT_EQ(office.Files(), before);
  other.reset();
  office.Run("SELECT IDColaborador INTO ExportacionExcel FROM Colaboradores");
  ExpectExports();
  EXPECT_ANY_THROW(office.Run("SELECT * FROM ExportacionExcel"));
}

TEST_F(ExportRun, FoldersThatDifferInCapitalsAreOthers) {
  office.AddPeople(3);
  const Names others{"datos/ExportacionAux.mdb", "datos/ExportacionExcel0.mdb", "DATOS/SALIDA.XLS",
                     "DATOS/~$Salida.xls", "datos/Salida.xls"};
  for (const std::string& name : others) office.folder.Touch(name);
  ExpectExports();
  ExpectExports();  // over the workbook of the first time
  for (const std::string& name : others) EXPECT_EQ(office.folder.Read(name), "x") << name;
}

TEST(ExportRunRows, StagingThatFailsIsToldAndLosesTheOldTargetOnly) {
  const std::tuple<const char*, const char*, const char*, const char*> failures[] = {
      {kCol, "Colaboradores.NIF", "{NIF} [Parecido a] `1´", "SELECT 1"},
      {kCol, "Colaboradores.Nada", "", "SELECT 1"},
      {kCol, "Colaboradores.Sexo", "", "SELECT 1"},  // cannot be recoded under another name
      {kRec, "Recibos.Importe", "", "DROP TABLE RecibosPendientes"},
      {"(MOD) Modelo182", "Modelo182Hacienda.Importe", "", "DROP TABLE TipoDonativos"},
  };
  for (const auto& [node, column, filter, statement] : failures) {
    SCOPED_TRACE(column);
    TestOffice office;
    office.AddPeople(3);
    office.Select(node, column, "Otro", filter);
    office.Touch({"Salida.xls"});
    office.Run("INSERT INTO Modelo182Hacienda (codColaborador) VALUES (1)");
    office.Run(statement);
    EXPECT_EQ(office.Export(), kStagingFailed);
    EXPECT_EQ(office.Boxes(),
              Names{"48 ¡Se ha producido un error en la sentencia sql de selección de registros"});
    EXPECT_NE(office.run.Failure().Description(), "");
    EXPECT_FALSE(std::filesystem::exists(office.Path("Salida.xls")));
    EXPECT_EQ(office.Rows("SELECT codColaborador FROM Modelo182Hacienda"), Table{});
  }
}

TEST_F(ExportRun, SelectionWithoutRowsIsToldAndTheWindowStays) {
  office.AddPeople(3);
  office.selection.rows[1].filtro = "{Nombre} = `Nadie´";
  // A box may stand for hours, in which others can export.
  office.host->beforeBox = [this] {
    EXPECT_FALSE(std::filesystem::exists(office.Path("VelmarExportacion.lock")));
  };
  EXPECT_EQ(office.Export(), kNoData);
  EXPECT_EQ(office.Boxes(), kNoDataBox);
  ExpectOpenWindow();
  office.selection.rows[1].filtro.clear();
  ExpectExports();
}

/// What the work database's own connection changes is not kept, so that it cannot be closed.
struct FullDisk : OperationObserver {
  void Begins(Operation operation, std::string_view subject) override {
    if (operation != Operation::kCommit || !subject.ends_with(exporting::kAuxiliaryFile)) return;
    throw RuntimeError(kDiskFull, "El disco está lleno.");
  }
};

TEST_F(ExportRun, WorkDatabaseThatCannotBeClosedIsTold) {
  office.AddPeople(3);
  office.Run("UPDATE Colaboradores SET Sexo = 1");
  office.Select(kCol, "Colaboradores.Sexo & ''", "Sexo");
  for (const auto& [column, outcome] : {std::pair{"1", kNoData}, {"'recibo'", kStagingFailed}}) {
    SCOPED_TRACE(column);
    office.Select(kCol, column, "Otro");
    FullDisk disk;
    const OperationObserver::Scope scope(disk);
    EXPECT_EQ(office.Export(), outcome);
    const Names boxes = office.Boxes();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[1], "48 La causa no está en la selección.\rEl disco está lleno.");
    ExpectOpenWindow();
    office.selection.rows.pop_back();
  }
}

TEST_F(ExportRun, MainDatabaseThatCannotBeAskedForALeftTableIsNoFailure) {
  office.AddPeople(3);
  office.log->Take();
  office.log->FailAt(0);
  ExpectExports();
}

struct Loss {
  std::ptrdiff_t rows;
  std::ptrdiff_t from;
  std::ptrdiff_t until;
  void (*arrange)(TestOffice& office);
  const char* told;
};

void FailToDecode(TestOffice& office) {
  office.codec->onDecode = [&office](long decoded) {
    if (decoded % 9000 == 3) throw RuntimeError(kTypeMismatch, "La cuenta no es válida.");
  };
}
void BlockFirstPart(TestOffice& office) {
  std::filesystem::create_directory(office.Path("ExportacionExcel0.mdb"));
}
void OverfillCell(TestOffice& office) {
  office.Run("UPDATE Colaboradores SET Nombre = '" + std::string(40000, 'x') + "' WHERE IDColaborador = 1");
}

const Loss kLosses[] = {
    {5, 0, 5, FailToDecode, "La cuenta no es válida.\rNo se ha creado el archivo "},
    {16001, 0, 8000, BlockFirstPart, "está incompleto: no lo utilice. Corrija"},
    {8001, 8000, 8001, OverfillCell, "está incompleto: no lo utilice. Corrija"},
};

TEST_F(ExportRun, BlockThatFailsIsLeftOutCountedAndTold) {
  for (const Loss& loss : kLosses) {
    SCOPED_TRACE(loss.rows);
    office.Run("DELETE FROM Colaboradores");
    office.AddPeople(loss.rows);
    loss.arrange(office);
    ASSERT_EQ(office.Export(), kIncomplete);
    const Names boxes = office.Boxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(boxes[0].starts_with("48 ¡No se han podido escribir " +
                                     std::to_string(loss.until - loss.from) + " filas de " +
                                     std::to_string(loss.rows) + "!\rMotivo: "))
        << boxes[0];
    EXPECT_NE(boxes[0].find(loss.told), std::string::npos) << boxes[0];
    ExpectOpenWindow();
    std::filesystem::remove(office.Path("ExportacionExcel0.mdb"));
    Table expected = office.ExpectedPeople();
    expected.erase(expected.begin() + loss.from, expected.begin() + loss.until);
    EXPECT_EQ(office.Files(), expected.empty() ? kOnlyDatabases : kWithWorkbook);
    EXPECT_EQ(office.Exported(), expected);
    office.codec->onDecode = {};
    office.Run("UPDATE Colaboradores SET Nombre = 'Ana' WHERE Len(Nombre) > 100");
    ExpectExports();
    std::filesystem::remove(office.Path("Salida.xls"));
  }
}

TEST_F(ExportRun, CancelLeavesNoTraceAtAnyStage) {
  office.AddPeople(8001);
  const Selection people = office.selection;
  const std::tuple<RunStage, const char*, const char*> cases[] = {
      {RunStage::kModelo182, "(MOD) Modelo182", "Modelo182Hacienda.Importe"},
      {RunStage::kStaging, kCol, "1"},
      {RunStage::kPending, kCol, "'recibo'"},
      {RunStage::kRepeated, kCol, "'recibo'"},
      {RunStage::kCutting, kCol, "1"},
      {RunStage::kPostProcessing, kCol, "1"},
      {RunStage::kSheets, kCol, "1"},
      {RunStage::kClosing, kCol, "1"},
  };
  for (const auto& [stage, node, column] : cases) {
    SCOPED_TRACE(static_cast<int>(stage));
    bool reached = false;
    office.selection = people;
    office.Select(node, column, "Otro");
    office.Run("INSERT INTO Modelo182Hacienda (codColaborador) VALUES (1)");
    office.onStage = [&, stage = stage](RunStage begun) {
      EXPECT_TRUE(office.run.IsRunning());
      if (begun != stage) return;
      reached = true;
      office.run.RequestCancel();
    };
    EXPECT_EQ(office.Export(), kCancelled);
    EXPECT_TRUE(reached);
    EXPECT_TRUE(office.Boxes().empty());
    EXPECT_EQ(office.Files(), kOnlyDatabases);
    EXPECT_EQ(office.Rows("SELECT codColaborador FROM Modelo182Hacienda"), Table{});
    ExpectOpenWindow();
  }
  office.onStage = [](RunStage) {};
  office.selection = people;
  office.run.RequestCancel();  // nothing is in progress
  ExpectExports();
}

TEST_F(ExportRun, BarCountsTheRowsAndThenTheBlocks) {
  office.AddPeople(8001);
  const controls::ProgressBar& bar = office.window->prgExportar;
  std::vector<std::tuple<RunStage, bool, long, long, long>> notes;
  office.onStage = [&](RunStage stage) {
    if (stage < RunStage::kSheets) return;
    notes.emplace_back(stage, bar.Visible(), bar.Min(), bar.Max(), bar.Value());
  };
  ExpectExports();
  notes.emplace_back(RunStage::kClosing, bar.Visible(), bar.Min(), bar.Max(), bar.Value());
  EXPECT_EQ(notes, (decltype(notes){{RunStage::kSheets, true, 0, 8002, 8001},
                                    {RunStage::kClosing, true, 0, 2, 1},
                                    {RunStage::kClosing, false, 0, 2, 2}}));
  EXPECT_EQ(office.window->dlgExportar.Flags(), 8198);
}

TEST_F(ExportRun, SecondExportDuringTheFirstIsRefusedWithABeep) {
  office.AddPeople(10);
  office.codec->onDecode = [this](long decoded) {
    if (decoded != 3) return;
    office.toolkit.ClearRecords();
    EXPECT_EQ(office.run.ExportarDatos(office.selection, office.catalogue), kRefused);
    EXPECT_EQ(office.toolkit.Records(toolkit::Record::Kind::kBeep).size(), 1U);
  };
  ExpectExports();
}

TEST(ExportRunRows, PendingOnesComeBehindRecodedAndNeverTwice) {
  // The folder and the filter stand in the statement too, and must not be rewritten there.
  TestOffice office("Recibos y Cobros d'Ana, select idrecibo");
  office.Run("INSERT INTO Donativos (IDDonativo) VALUES (1)");
  for (const std::string person : {"1, NULL, 1, False", "2, 'Ana', 2, False", "3, 'Ana', 0, False",
                                   "4, 'Ana', 1, True", "5, 'Recibos select de Ana', 2, False"}) {
    office.Run("INSERT INTO Colaboradores (IDColaborador, Nombre, Sexo, Juridico) VALUES (" + person + ")");
  }
  // Each with its key, its payer and its amount; some repeat others.
  for (const std::string receipt : {"1, 5, 50", "2, 1, 60", "3, 4, 40", "4, 1, 60", "5, 2, 20"}) {
    office.Run("INSERT INTO Recibos VALUES (" + receipt + ", False, NULL)");
  }
  for (const std::string receipt : {"1, 3, 30", "2, 1, 60", "3, 4, 41", "4, 5, 50", "5, 3, 30", "6, 5, 51"}) {
    office.Run("INSERT INTO RecibosPendientes VALUES (" + receipt + ", False)");
  }
  office.Run("INSERT INTO Cobros SELECT IDRecibo, 1, 1, 8 FROM Recibos");
  office.Run("INSERT INTO CobrosPendientes SELECT IDReciboPendiente, 1, 1, 8 FROM RecibosPendientes");
  office.Select(kCol, "Colaboradores.Nombre", "Nombre",
                "{Nombre} = `ANA´ [O] {} [Comience por] `RECIBOS SELECT´ [O] {} IS NULL");
  office.Select(kCol, "Colaboradores.Sexo & ''", "Sexo");
  office.Select(kCol, "Colaboradores.Juridico & ''", "TipoEntidad");
  office.Select(kRec, "Recibos.Importe", "Importe");
  office.Select(kRec, "Cobros.IDCobro", "Cobro");
  office.selection.order = {4};
  ASSERT_EQ(office.Export(), kFinished) << office.run.Failure().Description();
  // A NULL in the first row's first field is data, too.
  const Table expected{
      {"", "Hombre", "Física", "60", "8"},
      {"Recibos select de Ana", "Mujer", "Física", "50", "8"},
      {"Ana", "Hombre", "Jurídica", "40", "8"},
      {"Ana", "Mujer", "Física", "20", "8"},
      {"Recibos select de Ana", "Mujer", "Física", "51", "8"},
      {"Ana", "Hombre", "Jurídica", "41", "8"},
      {"Ana", "", "Física", "30", "8"},
  };
  EXPECT_EQ(office.Exported(), expected);

  // Rows that were only added or only recoded can repeat others, too.
  office.selection.rows.erase(office.selection.rows.begin() + 1, office.selection.rows.begin() + 3);
  ASSERT_EQ(office.Export(), kFinished) << office.run.Failure().Description();
  EXPECT_EQ(office.Exported().size(), expected.size());
  office.Run("DELETE FROM RecibosPendientes");
  office.Run("UPDATE Recibos SET Importe = 1");
  office.Run("UPDATE Colaboradores SET Nombre = NULL, Sexo = IIf(IDColaborador = 2, 0, NULL)");
  office.Select(kCol, "Colaboradores.Sexo & ''", "Sexo");
  ASSERT_EQ(office.Export(), kFinished) << office.run.Failure().Description();
  EXPECT_EQ(office.Exported(), (Table{{"", "1", "8", ""}}));
}

}  // namespace
}  // namespace velmar::testing
