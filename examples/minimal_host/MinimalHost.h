#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "host/interfaces/CurrentError.h"
#include "host/interfaces/HostApi.h"
#include "host/interfaces/HostApplication.h"
#include "host/interfaces/HostObjects.h"
#include "host/interfaces/cCuentaCodec.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Field.h"
#include "platform/com/ClassRegistry.h"
#include "platform/controls/TextBox.h"
#include "platform/text/Characters.h"
#include "platform/text/Search.h"
#include "platform/toolkit/ScriptedToolkit.h"
#include "wizard/frmExportacion.h"

namespace minimal {

/// The application: two databases in a folder, made with a few rows if they are not there.
class Application final : public velmar::HostApplication {
 public:
  explicit Application(const std::string& folder) : folder_(folder) {
    std::filesystem::create_directories(folder_);
    main_ = Database(
        "Gestion.mdb",
        {"CREATE TABLE Colaboradores (IDColaborador COUNTER PRIMARY KEY, Nombre TEXT(50), Cuota CURRENCY)",
         "INSERT INTO Colaboradores (Nombre, Cuota) VALUES ('Íñigo Núñez', 12.50)",
         "INSERT INTO Colaboradores (Nombre, Cuota) VALUES ('Ana Pérez', 20)",
         "INSERT INTO Colaboradores (Nombre, Cuota) VALUES ('Eva Sanz', 8.05)"});
    // The wizard copies its catalogue of fields and its templates from here into the main database.
    const std::string fields = "INSERT INTO ExportacionCamposTEMP VALUES ";
    reports_ = Database(
        "Informes.mdb",
        {"CREATE TABLE ExportacionCamposTEMP (IDCampo SHORT, NombreInternoCampo TEXT(60), LiteralCampo "
         "TEXT(60), "
         "CaracterValorCampo TEXT(1), LiteralCampoSELECT MEMO, LiteralCampoORDERBY MEMO, LiteralCampoWHERE "
         "MEMO, "
         "IDTabla SHORT, LiteralTabla TEXT(40))",
         fields + "(1, 'colaboradores.nombre', 'Nombre', '''', 'Colaboradores.Nombre AS Nombre', "
                  "'Colaboradores.Nombre', 'Colaboradores.Nombre', 1, '(COL) Colaboradores')",
         fields + "(2, 'colaboradores.cuota', 'Cuota', '', 'Colaboradores.Cuota AS Cuota', "
                  "'Colaboradores.Cuota', 'Colaboradores.Cuota', 1, '(COL) Colaboradores')",
         "CREATE TABLE ExportacionPlantillasTEMP (Nombre TEXT(150), CodUsuario LONG, LiteralTabla TEXT(40), "
         "IDCampo SHORT, LiteralCampo TEXT(60), OrdenCampo SHORT, FiltroCampo MEMO)"});
  }

  std::shared_ptr<ADODB::Connection> conGestion() const override { return main_; }
  std::shared_ptr<ADODB::Connection> coninformes() const override { return reports_; }
  std::string RutaApp() const override { return folder_; }
  std::string TituloAplicacion() const override { return "Aplicación mínima"; }
  std::string Icono() const override { return {}; }
  std::int32_t IDUsuario() const override { return 1; }
  std::optional<bool> Brivana() const override { return std::nullopt; }

 private:
  /// A closed connection; the wizard opens it and closes it again.
  std::shared_ptr<ADODB::Connection> Database(const std::string& file,
                                              std::initializer_list<std::string> statements) const {
    const std::string path = folder_ + "/" + file;
    auto connection =
        std::make_shared<ADODB::Connection>("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=\"" + path + "\"");
    if (!std::filesystem::exists(path)) {
      ADOX::Catalog().Create(connection->ConnectionString());
      connection->Open();
      for (const std::string& statement : statements) connection->Execute(statement);
      connection->Close();
    }
    return connection;
  }

  std::string folder_;
  std::shared_ptr<ADODB::Connection> main_;
  std::shared_ptr<ADODB::Connection> reports_;
};

/// The application's API library: tells failures, and helps with text boxes and tax numbers.
class Api final : public velmar::HostApi {
 public:
  void VerError(const std::string& rutina, const std::string& formulario,
                const std::string& componente) override {
    const velmar::ErrObject& error = velmar::CurrentError();
    std::fprintf(stderr, "Error %ld: %s (%s, %s, %s)\n", error.Number(), error.Description().c_str(),
                 componente.c_str(), formulario.c_str(), rutina.c_str());
  }
  void SeleccionarTexto(velmar::controls::TextBox& caja) override {
    caja.SelStart(0);
    caja.SelLength(static_cast<long>(velmar::text::Len(caja.Text())));
  }
  long validar_nif(const ADODB::Field& nif) override {
    return velmar::text::Len(nif.Value().TextOrEmpty()) == 9 ? 1 : 0;  // a real host checks the letter
  }
};

/// This application stores account numbers as they are.
class Codec final : public velmar::cCuentaCodec {
 public:
  void CodificarTramo(std::string&) override {}
  void DecodificarTramo(std::string&) override {}
};

/// Makes the application's two classes known to this program, under the names that the wizard asks for.
inline void RegisterClasses() {
  constexpr velmar::com::Guid kApi{
      0x5B0C2D41, 0x90E3, 0x4A67, {0x8D, 0x15, 0x2F, 0x6B, 0x3E, 0x9A, 0x70, 0xC8}};
  auto& classes = velmar::com::ClassRegistry::Instance();
  classes.Register({velmar::kHostApiProgId, kApi, [] { return std::make_shared<Api>(); }});
  classes.Register(
      {"Minima.cCuentaCodec", velmar::kCuentaCodecClassId, [] { return std::make_shared<Codec>(); }});
}

/// What a user would do: names sorted, quotas from ten upwards, into a workbook at this absolute path.
inline void Play(velmar::toolkit::ScriptedToolkit& user, const std::string& workbook) {
  user.AlwaysAnswer(velmar::toolkit::kYes, "asignar el filtro");
  user.AnswerFile(workbook);
  user.WhenShown("frmExportacion", [&user](velmar::toolkit::Form& shown) {
    using Controls = velmar::wizard::ExportControls;
    auto& form = dynamic_cast<velmar::wizard::frmExportacion&>(shown);
    form.cboExportar.UserChoose(form.cboExportar.FindStringExact("(COL) Colaboradores"));
    form.lstDisponibles.UserDoubleClick(form.lstDisponibles.FindStringExact("Nombre"));
    form.msgSeleccionados.UserClick(form.msgSeleccionados.Rows() - 1);
    user.AnswerMenu("Agregar al 'orden'");
    form.msgSeleccionados.UserMouseUp(2, 0, 0, 0);
    form.lstDisponibles.UserDoubleClick(form.lstDisponibles.FindStringExact("Cuota"));
    form.msgSeleccionados.UserClick(form.msgSeleccionados.Rows() - 1);
    form.txtFiltro.UserPaste("{Cuota} >= `10´");
    form.cmdFiltro(Controls::kFilterAssign).UserClick();
    form.cmdExportar(Controls::kExport).UserClick();
    form.UserClose();  // still open after a refusal
  });
}

/// Prints what the wizard told its user. True if it ended with the report of a complete export.
inline bool Tell(const velmar::toolkit::ScriptedToolkit& user) {
  bool complete = false;
  for (const auto& box : user.Records(velmar::toolkit::Record::Kind::kBox)) {
    std::printf("%s\n", velmar::text::Replace(box.text, "\r", "\n").c_str());
    complete = box.number == velmar::toolkit::kInformation;
  }
  return complete;
}

}  // namespace minimal
