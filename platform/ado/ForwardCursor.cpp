#include "platform/ado/ForwardCursor.h"

#include "platform/ado/Session.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/OperationObserver.h"
#include "platform/error/RuntimeError.h"

namespace ADODB {

ForwardCursor::ForwardCursor(std::shared_ptr<Session> session, velmar::jet::Translation translation)
    : Cursor(std::move(session)), translation_(std::move(translation)) {
  select_.emplace(Owner().Engine(), translation_.sql, &translation_);
  Columns(ColumnsOf(*select_, translation_));
  Advance();
  empty_ = eof_;
}

ForwardCursor::~ForwardCursor() {
  select_.reset();
  if (IsOpen()) Owner().Others().Release();
}

void ForwardCursor::MoveNext() {
  Owner();
  RequireRow();
  moved_ = true;
  Advance();
}

void ForwardCursor::MoveFirst() {
  Owner();
  if (!moved_) return;
  throw velmar::RuntimeError(velmar::kInvalidProcedureCall,
                             "Un conjunto de registros de sólo avance no puede volver al principio.",
                             "ADODB.Recordset");
}

Variant ForwardCursor::StoredValue(std::size_t column) {
  return ValueOf(*select_, static_cast<int>(column));
}

void ForwardCursor::FreeStatements() noexcept {
  select_.reset();
}

void ForwardCursor::Advance() {
  velmar::OperationObserver::Announce(velmar::Operation::kReadRow, translation_.sql);
  if (select_->Step()) return;
  eof_ = true;
  select_.reset();  // the read lock goes with the last row
}

}  // namespace ADODB
