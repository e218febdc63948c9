#include "platform/ado/StaticCursor.h"

#include "platform/ado/Session.h"
#include "platform/ado/Statement.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace ADODB {

StaticCursor::StaticCursor(std::shared_ptr<Session> session, velmar::jet::Translation translation,
                           const std::string& counted)
    : CountedCursor(std::move(session)), translation_(std::move(translation)) {
  Database& database = Owner().Engine();
  Columns(ColumnsOf(Statement(database, translation_.sql, &translation_), translation_));
  Count(static_cast<std::size_t>(database.Number("SELECT count(*) FROM (" + counted + ")")));
  version_ = CurrentVersion();
  if (RecordCount() <= static_cast<long>(kRowsReadAtOnce)) Read();
}

Variant StaticCursor::StoredValue(std::size_t column) {
  if (!rows_) Read();
  return rows_->Value(Position(), column);
}

StaticCursor::Version StaticCursor::CurrentVersion() const {
  Database& database = Owner().Engine();
  return {database.OwnChanges(), database.OthersChanges()};
}

void StaticCursor::Read() {
  RowStore rows;
  {
    Statement select(Owner().Engine(), translation_.sql, &translation_);
    while (select.Step()) rows.Append(select);
  }
  if (CurrentVersion() != version_ || rows.RowCount() != static_cast<std::size_t>(RecordCount())) {
    throw velmar::RuntimeError(
        velmar::kRecordDeleted,
        "Los registros han cambiado desde que se abrió el conjunto y ya no se pueden leer como "
        "eran. Ábralo de nuevo.",
        "ADODB.Recordset");
  }
  rows_ = std::move(rows);
}

}  // namespace ADODB
