#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "export/ExportRun.h"
#include "host/interfaces/HostApi.h"
#include "host/interfaces/HostApplication.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/files/TemporaryFolder.h"
#include "platform/toolkit/Clock.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "query/Selection.h"

namespace velmar::testing {

class TestHost : public HostApplication {
 public:
  std::shared_ptr<ADODB::Connection> conGestion() const override { return main; }
  std::shared_ptr<ADODB::Connection> coninformes() const override { return reports; }
  std::string RutaApp() const override { return "/app"; }
  std::string TituloAplicacion() const override { return "Quinvera"; }
  std::string Icono() const override { return {}; }
  std::int32_t IDUsuario() const override { return 1; }
  std::optional<bool> Brivana() const override { return brivana; }

  std::shared_ptr<ADODB::Connection> main = std::make_shared<ADODB::Connection>();
  std::shared_ptr<ADODB::Connection> reports = std::make_shared<ADODB::Connection>();
  std::optional<bool> brivana;
};

class TestApi : public HostApi {
 public:
  void VerError(const std::string&, const std::string&, const std::string&) override {}
  void SeleccionarTexto(controls::TextBox&) override {}
  long validar_nif(const ADODB::Field& nif) override;

  std::vector<std::string> validated;
};

/// The stored form of a tail: its characters from the last to the first.
class TestCodec : public cCuentaCodec {
 public:
  void CodificarTramo(std::string& tramo) override { DecodificarTramo(tramo); }
  void DecodificarTramo(std::string& tramo) override;

  /// Runs before a tail is decoded, with the number of tails decoded before.
  std::function<void(long)> onDecode;
  long decoded = 0;
};

/// Stands still unless it is moved, or goes on by `tick` whenever somebody looks at it.
class TestClock : public toolkit::Clock {
 public:
  std::chrono::nanoseconds Now() const override { return now_ += tick; }
  void Advance(std::chrono::nanoseconds by) { now_ += by; }

  std::chrono::nanoseconds tick{0};

 private:
  mutable std::chrono::nanoseconds now_{0};
};

/// The part of a window that an export needs.
class TestWindow : public toolkit::Form {
 public:
  explicit TestWindow(toolkit::Toolkit& toolkit);

  std::shared_ptr<ADODB::Connection> conAuxiliar = std::make_shared<ADODB::Connection>();
  controls::ProgressBar prgExportar{"prgExportar"};
  controls::CommonDialog dlgExportar{"dlgExportar"};
  controls::ControlArray<controls::Timer> tmrExportacion{"tmrExportacion"};
  std::function<void(int)> timerFired;
};

/// A host with its two databases in a folder of their own, a window and an export.
class TestOffice {
 public:
  /// The password is that of the reports database.
  explicit TestOffice(const std::string& subfolder = {}, const std::string& password = {},
                      const std::string& reportsFile = "Informes.mdb");

  std::string Path(const std::string& file) const {
    return folder / (subfolder.empty() ? file : subfolder + "/" + file);
  }
  void Run(const std::string& sql) { host->main->Execute(sql); }
  /// All rows of a statement on the main database; NULL as empty text.
  std::vector<std::vector<std::string>> Rows(const std::string& sql) const;
  long Count(const std::string& table) const;
  /// Names of the files in the databases' folder, sorted.
  std::vector<std::string> Files() const;
  std::vector<std::string> WorkFiles() const;

  /// Adds a field to the catalogue and the selection.
  void Select(const std::string& node, const std::string& internalName, const std::string& select,
              const std::string& filter = {}, const std::string& where = {},
              const std::string& delimiter = "'");
  void OrderBy(const std::string& text);

  /// Colaboradores with so many rows, added in no order of their keys: names, accounts and dates of which
  /// some are empty.
  void AddPeople(long count);
  /// Selects key, name, account and date of the people, ordered by key.
  void SelectPeople();
  /// What an export of SelectPeople is to leave, head row excluded.
  std::vector<std::vector<std::string>> ExpectedPeople() const;

  exporting::RunContext Context();
  exporting::Outcome Export(const std::string& file = "Salida.xls");
  /// The texts of all message boxes since the last call, each with its style in front: "48 text".
  std::vector<std::string> Boxes();

  files::TemporaryFolder folder;
  std::string subfolder;
  std::shared_ptr<TestHost> host = std::make_shared<TestHost>();
  std::shared_ptr<TestApi> api = std::make_shared<TestApi>();
  std::shared_ptr<TestCodec> codec = std::make_shared<TestCodec>();
  TestClock clock;
  toolkit::ScriptedToolkit toolkit{clock};
  std::shared_ptr<TestWindow> window;
  Collection<cCampos> catalogue;
  Selection selection;
  std::vector<std::string> reported;
  int year = 2026;
  std::function<void(exporting::RunStage)> onStage;
  std::unique_ptr<exporting::ExportRun> run;
};

}  // namespace velmar::testing
