#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/com/Object.h"

namespace ADODB {
class Connection;
}

namespace velmar {

/// The host application, handed over by `PasarDatos`. The component asks for a member whenever it needs it
/// and keeps none of the values.
class HostApplication : public com::Object {
 public:
  /// The main database. Each read gives the live object, which the host goes on to own.
  virtual std::shared_ptr<ADODB::Connection> conGestion() const = 0;
  /// The reports database. Its file name holds "informes.mdb" and is written "Informes.mdb" on disk.
  virtual std::shared_ptr<ADODB::Connection> coninformes() const = 0;
  /// The application's folder, without a final separator.
  virtual std::string RutaApp() const = 0;
  /// The title of every message box.
  virtual std::string TituloAplicacion() const = 0;
  /// The icon's file for the windows.
  virtual std::string Icono() const = 0;
  /// The current user.
  virtual std::int32_t IDUsuario() const = 0;
  /// Switches a restriction of Modelo 182. Null counts as false.
  virtual std::optional<bool> Brivana() const = 0;
};

}  // namespace velmar
