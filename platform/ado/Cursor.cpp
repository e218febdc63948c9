#include "platform/ado/Cursor.h"

#include "platform/ado/Session.h"
#include "platform/ado/TableNames.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace ADODB {

using velmar::RuntimeError;

std::size_t Cursor::ColumnIndex(std::string_view name) const {
  for (std::size_t index = 0; index < columns_.size(); ++index) {
    if (columns_[index].name == name) return index;
  }
  for (std::size_t index = 0; index < columns_.size(); ++index) {
    if (SameName(columns_[index].name, name)) return index;
  }
  throw RuntimeError(velmar::kItemNotInCollection,
                     "El conjunto de registros no tiene una columna «" + std::string(name) + "».",
                     "ADODB.Fields");
}

Variant Cursor::Value(std::size_t column) {
  Owner();
  RequireRow();
  Variant value = StoredValue(column);
  if (columns_[column].boolean && value.IsWhole()) return value.AsBoolean();
  return value;
}

void Cursor::Update(std::size_t /*column*/, const Variant& /*value*/) {
  throw RuntimeError(
      velmar::kReadOnly,
      "El conjunto de registros es de sólo lectura: para escribir, ábralo con cursor de claves y bloqueo "
      "optimista sobre los campos de una sola tabla.",
      "ADODB.Recordset");
}

void Cursor::Finish() {
  Owner().EndBatch();
}

void Cursor::RequireRow() const {
  if (!Eof()) return;
  throw RuntimeError(velmar::kNoCurrentRow,
                     "No hay ningún registro activo: se ha llegado al final o no hay registros.",
                     "ADODB.Recordset");
}

}  // namespace ADODB
