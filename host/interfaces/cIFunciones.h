#pragma once

#include <memory>

namespace ADODB {
class Connection;
class Recordset;
}  // namespace ADODB

namespace velmar {

/// Opens and closes connections and recordsets whatever their state. It holds no state of its own, and every
/// failure goes to the caller; an object that is not there is kObjectNotSet.
class cIFunciones {
 public:
  /// Opens a closed connection with the settings that it holds.
  void AbrirConexion(const std::shared_ptr<ADODB::Connection>& con) const;
  /// Closes an open connection.
  void CerrarConexion(const std::shared_ptr<ADODB::Connection>& con) const;
  /// Closes an open recordset and sets the caller's reference to nothing.
  void CerrarRecordset(std::shared_ptr<ADODB::Recordset>& rec) const;
};

}  // namespace velmar
