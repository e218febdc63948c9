#include "platform/ado/Fields.h"

#include "platform/ado/Cursor.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace ADODB {

long Fields::Count() const {
  return static_cast<long>(cursor_->Columns().size());
}

Field Fields::Item(long index) const {
  if (index < 0 || index >= Count()) {
    throw velmar::RuntimeError(velmar::kItemNotInCollection,
                               "El conjunto de registros no tiene una columna " + std::to_string(index) +
                                   ": tiene " + std::to_string(Count()) + ", contadas desde 0.",
                               "ADODB.Fields");
  }
  return Field(*cursor_, static_cast<std::size_t>(index));
}

Field Fields::Item(std::string_view name) const {
  return Field(*cursor_, cursor_->ColumnIndex(name));
}

}  // namespace ADODB
