#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/interfaces/HostObjects.h"
#include "host/interfaces/TestDatabases.h"
#include "host/interfaces/modVelmarExportacion.h"
#include "platform/com/ClassRegistry.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/TextBox.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "templates/TemplateContent.h"
#include "templates/TemplateStore.h"
#include "wizard/RecordingHost.h"

namespace velmar::testing {

/// A host whose user can change.
class UserHost : public RecordingHost {
 public:
  using RecordingHost::RecordingHost;
  std::int32_t IDUsuario() const override { return user; }

  std::int32_t user = 7;
};

/// Selects the text, and notes it.
class SelectingApi : public RecordingApi {
 public:
  using RecordingApi::RecordingApi;
  void SeleccionarTexto(controls::TextBox& caja) override {
    caja.SelStart(0);
    caja.SelLength(1000);
    ++selected;
  }

  static inline int selected = 0;
};

/// An open main database with the table of templates, and the two controls of a wizard.
class TemplateOffice {
 public:
  TemplateOffice() {
    main = host->main;
    databases.Create("Gestion.mdb")->Close();
    main->Open();
    main->Execute(
        "CREATE TABLE ExportacionPlantillas (Nombre TEXT(150), CodUsuario LONG, LiteralTabla TEXT(40), "
        "IDCampo SHORT, LiteralCampo TEXT(60), OrdenCampo SHORT, FiltroCampo MEMO)");
    objHost = host;
    com::ClassRegistry::Instance().Register(
        {kHostApiProgId, kApiClass, [log = log] { return std::make_shared<SelectingApi>(log); }});
    grid.Cols(3);
    grid.Rows(2);
    grid.FixedRows(1);
    grid.Rows(1);
  }
  ~TemplateOffice() {
    com::ClassRegistry::Instance().Unregister(kApiClass);
    objHost = nullptr;
  }
  TemplateOffice(const TemplateOffice&) = delete;
  TemplateOffice& operator=(const TemplateOffice&) = delete;

  templates::TemplateStore Store(std::int32_t user = 7) const { return {main, user}; }

  /// All rows of the table, "name|user|node|number|literal|order|filter", in the order of insertion.
  std::vector<std::string> Table() const {
    const auto rows = main->Execute(
        "SELECT Nombre, CodUsuario, LiteralTabla, IDCampo, LiteralCampo, OrdenCampo, FiltroCampo FROM "
        "ExportacionPlantillas");
    std::vector<std::string> lines;
    for (; !rows->Eof(); rows->MoveNext()) {
      std::string line = rows->Fields(0L).Value().AsText();
      for (long i = 1; i < 7; ++i) line += "|" + rows->Fields(i).Value().AsText();
      lines.push_back(line);
    }
    return lines;
  }

  /// Calls of VerError since the last time.
  std::vector<std::string> Reported() {
    std::vector<std::string> reports;
    for (const std::string& call : log->Take()) {
      if (call.starts_with("VerError ")) reports.push_back(call);
    }
    return reports;
  }

  /// The boxes since the last time, each with its style and a "+" if a beep came right before it.
  std::vector<std::string> Boxes() {
    std::vector<std::string> boxes;
    bool beeped = false;
    for (const toolkit::Record& record : toolkit.Records()) {
      if (record.kind == toolkit::Record::Kind::kBox && record.title == "Quinvera") {
        boxes.push_back((beeped ? "+" : "") + std::to_string(record.number) + " " + record.text);
      }
      beeped = record.kind == toolkit::Record::Kind::kBeep;
    }
    toolkit.ClearRecords();
    return boxes;
  }

  TestDatabases databases;
  std::shared_ptr<CallLog> log = std::make_shared<CallLog>();
  std::shared_ptr<UserHost> host =
      std::make_shared<UserHost>(databases.Text("Gestion.mdb"), databases.Text("Informes.mdb"), log);
  std::shared_ptr<ADODB::Connection> main;
  toolkit::ScriptedToolkit toolkit;
  controls::Grid grid{"msgSeleccionados"};
  controls::ListBox order{"lstOrden"};

 private:
  static constexpr com::Guid kApiClass{
      0x0A51B1C2, 0x7713, 0x4AA0, {0x81, 0x22, 0x5E, 0x09, 0x6C, 0x4D, 0xF0, 0x12}};
};

/// Three fields whose grid order is neither that of their numbers nor the sort order.
inline templates::TemplateContent Members() {
  return {{{"(COL) Colaboradores", "Provincia", "{Provincia} = `Madrid´", 11},
           {"(COL) Colaboradores", "Apellido", "", 3},
           {"(REC) Recibos", "Importe", "{Importe} > `10.5´", 29}},
          {{"(rec) importe", 29}, {"(DON) Ajeno", 20}, {"(COL) Apellido", 3}}};
}

}  // namespace velmar::testing
