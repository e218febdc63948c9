#pragma once

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "catalogue/FieldLookup.h"
#include "export/ExportRun.h"
#include "platform/ado/BulkInsert.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/Recordset.h"
#include "platform/files/TemporaryFolder.h"
#include "platform/toolkit/FakeClock.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "sample/WorkbookReader.h"
#include "wizard/RecordingHost.h"

namespace velmar::testing {

using Names = std::vector<std::string>;
using Table = std::vector<Names>;
using FileNames = std::set<std::string>;

class TestHost : public RecordingHost {
 public:
  using RecordingHost::RecordingHost;
  std::optional<bool> Brivana() const override {
    ++brivanaReads;
    return brivana;
  }
  std::string TituloAplicacion() const override {
    beforeBox();
    return RecordingHost::TituloAplicacion();
  }

  std::optional<bool> brivana;
  mutable int brivanaReads = 0;
  /// Runs when a box is about to show.
  std::function<void()> beforeBox = [] {};
};

/// Knows one good NIF.
class TestApi : public RecordingApi {
 public:
  using RecordingApi::RecordingApi;
  long validar_nif(const ADODB::Field& nif) override { return nif.Value().AsText() == "12345678Z" ? 1 : 0; }
};

/// The stored form of a tail: its characters from the last to the first.
class TestCodec : public cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override { DecodificarTramo(tramo); }
  void DecodificarTramo(std::string& tramo) override {
    const long before = decoded++;
    if (onDecode) onDecode(before);
    std::reverse(tramo.begin(), tramo.end());
  }

  /// Runs before a tail is decoded, with the number of tails decoded before.
  std::function<void(long)> onDecode;
  long decoded = 0;
};

/// The part of a window that an export needs.
class TestWindow : public toolkit::Form {
 public:
  explicit TestWindow(toolkit::Toolkit& toolkit) : Form(toolkit, "frmExportacion") {
    prgExportar.Visible(false);
    dlgExportar.CancelError(true);
    Add(prgExportar);
    Add(dlgExportar);
    tmrExportacion.Wire([this](controls::Timer& timer, int index) {
      Add(timer);
      timer.Elapsed = [this, index] { timerFired(index); };
    });
    tmrExportacion.Load(0);
  }

  std::shared_ptr<ADODB::Connection> conAuxiliar = std::make_shared<ADODB::Connection>();
  controls::ProgressBar prgExportar{"prgExportar"};
  controls::CommonDialog dlgExportar{"dlgExportar"};
  controls::ControlArray<controls::Timer> tmrExportacion{"tmrExportacion"};
  std::function<void(int)> timerFired;
};

/// A host with its two databases in a folder of their own, a window and an export.
class TestOffice {
 public:
  static constexpr const char* kCol = "(COL) Colaboradores";

  explicit TestOffice(std::string place = "Datos", const std::string& reportsFile = "Informes.mdb")
      : subfolder(std::move(place)) {
    std::filesystem::create_directories(folder / subfolder);
    for (const auto& connection : {host->main, host->reports}) {
      ADODB::ConnectionText text("Provider=Microsoft.Jet.OLEDB.4.0");
      text.Set(ADODB::kDataSourceKey, Path(connection == host->main ? "Gestion.mdb" : reportsFile));
      ADOX::Catalog().Create(text.Text());
      connection->Open(text.Text());
    }
    for (const char* table :
         {"Colaboradores (IDColaborador LONG PRIMARY KEY, Nombre MEMO, Apellido1 TEXT, Apellido2 TEXT, NIF "
          "TEXT, Sexo SHORT, Juridico BIT, CodProvincia LONG, Modelo182 BIT, Eliminado BIT, Cuenta TEXT, "
          "FechaAlta TEXT)",
          "Recibos (IDRecibo LONG, CodColaborador LONG, Importe CURRENCY, Eliminado BIT, FechaCobro TEXT)",
          "RecibosPendientes (IDReciboPendiente LONG, CodColaborador LONG, Importe CURRENCY, Eliminado BIT)",
          "Cobros (CodRecibo LONG, CodDonativo LONG, Importe CURRENCY, IDCobro LONG)",
          "CobrosPendientes (CodRecibo LONG, CodDonativo LONG, Importe CURRENCY, IDCobroPendiente LONG)",
          "Donativos (IDDonativo LONG PRIMARY KEY, CodColaborador LONG, CodTipoDonativo LONG)",
          "TipoDonativos (IDTipoDonativo LONG, TipoA BIT, Modelo182 BIT, Eliminado BIT)",
          "Provincias (IDProvincia LONG PRIMARY KEY, Nombre TEXT)",
          "Modelo182Hacienda (codColaborador LONG, NombreColaborador TEXT, NIFColaborador TEXT, Importe "
          "CURRENCY, Provincia TEXT, TipoDonativo TEXT)"}) {
      Run(std::string("CREATE TABLE ") + table);
    }
    window->Load();
    window->timerFired = [this](int index) { run.tmrExportacion_Timer(index); };
  }

  std::string Path(const std::string& file) const { return folder / (subfolder + "/" + file); }
  /// Makes small files in the databases' folder.
  void Touch(const Names& names) const {
    for (const std::string& name : names) folder.Touch(subfolder + "/" + name);
  }
  FileNames Files() const { return folder.Names(subfolder); }

  void Run(const std::string& sql) { host->main->Execute(sql); }
  /// All rows of a statement on the main database; NULL as empty text.
  Table Rows(const std::string& sql) const {
    Table rows;
    for (const auto found = host->main->Execute(sql); !found->Eof(); found->MoveNext()) {
      Names& row = rows.emplace_back();
      for (long i = 0; i < found->Fields().Count(); ++i) {
        row.push_back(found->Fields(i).Value().TextOrEmpty());
      }
    }
    return rows;
  }

  /// Adds a field to the catalogue and the selection; `column` is its text in conditions and in the order.
  void Select(const std::string& node, const std::string& column, const std::string& name,
              const std::string& filter = {}) {
    cCampos field;
    field.IDCampo(static_cast<std::int16_t>(catalogue.Count() + 1));
    field.LiteralTabla(node);
    field.LiteralCampoSELECT(column + " AS " + name);
    field.LiteralCampoWHERE(column);
    field.LiteralCampoORDERBY(column + " DESC");
    field.CaracterValorCampo("'");
    selection.rows.push_back({node, name, filter, field.IDCampo()});
    catalogue.Add(field, FieldKey(field.IDCampo()));
  }

  /// Fills Colaboradores with so many rows: names, accounts and dates, of which some are empty.
  void AddPeople(long count) {
    ADODB::BulkInsert people(*host->main, "Colaboradores", {"IDColaborador"});
    host->main->BeginTrans();
    for (long id = 1; id <= count; ++id) people.Row({id});
    host->main->CommitTrans();
    Run("UPDATE Colaboradores SET Nombre = IIf(IDColaborador Mod 3 = 0, 'Íñigo ', 'Ana ') & IDColaborador, "
        "Cuenta = IIf(IDColaborador Mod 7 = 0, NULL, IIf(IDColaborador Mod 11 = 0, '12345', (1000000000 + "
        "IDColaborador) & (123456 + IDColaborador))), FechaAlta = IIf(IDColaborador Mod 5 = 0, '//', '0' & "
        "(IDColaborador Mod 9 + 1) & '/03/2025')");
  }
  /// Selects key, name, account and date of the people, the greatest key first.
  void SelectPeople() {
    Select(kCol, "Colaboradores.IDColaborador", "Codigo");
    Select(kCol, "Colaboradores.Nombre", "Nombre");
    Select(kCol, "Colaboradores.Cuenta", "CuentaBancaria");
    Select(kCol, "Colaboradores.FechaAlta", "[Fecha de alta]");
    selection.order = {1};
  }
  /// What an export of SelectPeople is to leave, head row excluded.
  Table ExpectedPeople() const {
    Table rows = Rows("SELECT IDColaborador, Nombre, Cuenta, FechaAlta FROM Colaboradores ORDER BY 1 DESC");
    for (Names& row : rows) {
      if (row[2].size() > 10) std::reverse(row[2].begin() + 10, row[2].end());
      if (row[3] == "//") row[3].clear();
    }
    return rows;
  }

  /// In a window that is loaded, with a file of the databases' folder as the answer to the file dialog.
  exporting::Outcome Export(const std::string& file = "Salida.xls") {
    window->Load();
    toolkit.AnswerFile(Path(file));
    return run.ExportarDatos(selection, catalogue);
  }
  /// The rows of all sheets without their head rows, as a reader that is not ours understands them; none
  /// without a workbook.
  Table Exported() const {
    Table rows;
    if (!std::filesystem::exists(Path("Salida.xls"))) return rows;
    for (const Table& sheet : sample::ReadWorkbook(Path("Salida.xls"))) {
      rows.insert(rows.end(), sheet.begin() + 1, sheet.end());
    }
    return rows;
  }
  /// The texts of all message boxes since the last call, each with its style in front: "48 text".
  Names Boxes() {
    Names boxes;
    for (const toolkit::Record& record : toolkit.Records(toolkit::Record::Kind::kBox)) {
      EXPECT_EQ(record.title, "Quinvera");
      boxes.push_back(std::to_string(record.number) + " " + record.text);
    }
    toolkit.ClearRecords();
    return boxes;
  }

  files::TemporaryFolder folder;
  std::string subfolder;
  std::shared_ptr<CallLog> log = std::make_shared<CallLog>();
  std::shared_ptr<TestHost> host = std::make_shared<TestHost>("", "", log);
  std::shared_ptr<TestCodec> codec = std::make_shared<TestCodec>();
  toolkit::FakeClock clock;
  toolkit::ScriptedToolkit toolkit{clock};
  std::shared_ptr<TestWindow> window = toolkit::MakeForm<TestWindow>(toolkit);
  Collection<cCampos> catalogue;
  Selection selection;
  std::function<void(exporting::RunStage)> onStage = [](exporting::RunStage) {};
  exporting::ExportRun run{{host, *window, window->conAuxiliar, window->prgExportar, window->dlgExportar,
                            window->tmrExportacion, [this] { return std::make_shared<TestApi>(log); },
                            [this] { return codec; }, [](const RuntimeError&, const std::string&) {},
                            [] { return 2026; }, [this](exporting::RunStage stage) { onStage(stage); }}};
};

}  // namespace velmar::testing
