#include "host/interfaces/cIFunciones.h"

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar {

namespace {

template <typename Object>
Object& Required(const std::shared_ptr<Object>& object, const char* what) {
  if (object == nullptr) {
    throw RuntimeError(kObjectNotSet, std::string("No hay ") + what + ": la referencia está vacía.",
                       "cIFunciones");
  }
  return *object;
}

}  // namespace

void cIFunciones::AbrirConexion(const std::shared_ptr<ADODB::Connection>& con) const {
  ADODB::Connection& connection = Required(con, "conexión");
  if (connection.State() == ADODB::kStateClosed) connection.Open("", "", "", -1);
}

void cIFunciones::CerrarConexion(const std::shared_ptr<ADODB::Connection>& con) const {
  ADODB::Connection& connection = Required(con, "conexión");
  if (connection.State() == ADODB::kStateOpen) connection.Close();
}

void cIFunciones::CerrarRecordset(std::shared_ptr<ADODB::Recordset>& rec) const {
  ADODB::Recordset& recordset = Required(rec, "conjunto de registros");
  if (recordset.State() == ADODB::kStateOpen) recordset.Close();
  rec.reset();
}

}  // namespace velmar
