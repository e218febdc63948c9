#pragma once

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "host/interfaces/HostObjects.h"
#include "host/interfaces/TestDatabases.h"
#include "platform/com/ClassRegistry.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "wizard/RecordingHost.h"

namespace velmar::testing {

/// A host with real databases: a catalogue of nine fields in four nodes and the table of templates in the
/// main one. Its classes are registered as long as it lives; its connections are closed at first.
class WizardOffice {
 public:
  static constexpr const char* kCol = "(COL) Colaboradores";
  static constexpr const char* kDon = "(DON) Donativos/Suscripciones";
  static constexpr const char* kRec = "(REC) Recibos";
  static constexpr const char* kMod = "(MOD) Modelo182";

  WizardOffice() {
    const auto main = databases.Create("Gestion.mdb");
    databases.Create("Informes.mdb");
    main->Execute(
        "CREATE TABLE ExportacionCampos (IDCampo LONG, NombreInternoCampo TEXT(100), LiteralCampo TEXT(100), "
        "CaracterValorCampo TEXT(1), LiteralCampoSELECT TEXT(255), LiteralCampoORDERBY TEXT(255), "
        "LiteralCampoWHERE TEXT(255), IDTabla LONG, LiteralTabla TEXT(100))");
    main->Execute(
        "CREATE TABLE ExportacionPlantillas (Nombre TEXT(150), CodUsuario LONG, LiteralTabla TEXT(40), "
        "IDCampo SHORT, LiteralCampo TEXT(60), OrdenCampo SHORT, FiltroCampo MEMO)");
    const std::tuple<const char*, const char*, const char*, const char*> fields[] = {
        {"colaboradores.nombre", "Nombre", "1", kCol},    {"colaboradores.apellido1", "Apellidos", "1", kCol},
        {"colaboradores.poblacion", "ciudad", "1", kCol}, {"colaboradores.nuevo", "Árbol", "1", kCol},
        {"recibos.importe", "Importe", "2", kRec},        {"recibos.fecha", "Fecha", "2", kRec},
        {"recibos.nombre", "nombre", "2", kRec},          {"modelo182hacienda.nif", "Clave", "3", kMod},
        {"donativos.cuenta", "Tipo", "4", kDon}};
    int count = 0;
    for (const auto& [name, literal, table, node] : fields) {
      const std::string id = std::to_string(++count);
      main->Execute("INSERT INTO ExportacionCampos VALUES (" + id + ", '" + name + "', '" + literal +
                    "', '''', 'S" + id + "', 'O" + id + "', 'W" + id + "', " + table + ", '" + node + "')");
    }
    main->Close();
    com::ClassRegistry::Instance().Register({kHostApiProgId, kApiClass, [log = log] {
                                               log->Note("CreateObject");
                                               return std::make_shared<RecordingApi>(log);
                                             }});
  }
  ~WizardOffice() { com::ClassRegistry::Instance().Unregister(kApiClass); }

  /// The texts of the boxes shown since the last call, each with its style and a "+" if a beep came right
  /// before it.
  std::vector<std::string> Boxes() {
    using Kind = toolkit::Record::Kind;
    std::vector<std::string> boxes;
    bool beeped = false;
    for (const toolkit::Record& record : toolkit.Records()) {
      if (record.kind == Kind::kBox && record.title == "Quinvera") {
        boxes.push_back((beeped ? "+" : "") + std::to_string(record.number) + " " + record.text);
      }
      beeped = record.kind == Kind::kBeep;
    }
    toolkit.ClearRecords();
    return boxes;
  }

  TestDatabases databases;
  std::shared_ptr<CallLog> log = std::make_shared<CallLog>();
  std::shared_ptr<RecordingHost> host =
      std::make_shared<RecordingHost>(databases.Text("Gestion.mdb"), databases.Text("Informes.mdb"), log);
  toolkit::ScriptedToolkit toolkit;

 private:
  static constexpr com::Guid kApiClass{
      0x0A51B1C2, 0x7713, 0x4AA0, {0x81, 0x22, 0x5E, 0x09, 0x6C, 0x4D, 0xF0, 0x11}};
};

}  // namespace velmar::testing
