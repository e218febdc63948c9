#include "platform/ado/StoredCursor.h"

#include "platform/ado/Session.h"
#include "platform/ado/Statement.h"
#include "platform/jet/Translation.h"

namespace ADODB {

StoredCursor::StoredCursor(std::shared_ptr<Session> session, const velmar::jet::Translation& translation)
    : CountedCursor(std::move(session)) {
  Statement select(Owner().Engine(), translation.sql, &translation);
  Columns(ColumnsOf(select, translation));
  while (select.Step()) rows_.Append(select);
  Count(rows_.RowCount());
}

}  // namespace ADODB
