#include "platform/ado/KeysetCursor.h"

#include <sqlite3.h>

#include "platform/ado/Session.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Translation.h"

namespace ADODB {

using velmar::jet::QuoteIdentifier;

KeysetCursor::KeysetCursor(std::shared_ptr<Session> session, const velmar::jet::Translation& translation,
                           KeyedTable table, bool writes)
    : CountedCursor(std::move(session)), table_(std::move(table)), writes_(writes) {
  Database& database = Owner().Engine();
  Columns(ColumnsOf(Statement(database, translation.sql, &translation), translation));
  {
    const velmar::jet::Translation keys = Owner().Translate(table_.keys);
    Statement select(database, keys.sql, &keys);
    while (select.Step()) keys_.push_back(select.Long(0));
  }
  Count(keys_.size());
  std::string list;
  for (const std::string& column : table_.columns)
    list += (list.empty() ? "" : ", ") + QuoteIdentifier(column);
  read_.emplace(database,
                "SELECT " + list + " FROM main." + QuoteIdentifier(table_.table) + " WHERE _rowid_ = ?1");
}

KeysetCursor::~KeysetCursor() = default;

Variant KeysetCursor::StoredValue(std::size_t column) {
  const std::int64_t version = sqlite3_total_changes64(Owner().Engine().Handle());
  if (rowPosition_ != Position() || rowVersion_ != version) {
    rowPosition_.reset();
    read_->Bind(1, keys_[Position()]);
    const bool found = read_->Step();
    row_.clear();
    if (found) {
      for (int index = 0; index < read_->ColumnCount(); ++index) row_.push_back(ValueOf(*read_, index));
    }
    read_->Reset();
    if (!found) RaiseDeleted();
    rowPosition_ = Position();
    rowVersion_ = version;
  }
  return row_[column];
}

void KeysetCursor::Update(std::size_t column, const Variant& value) {
  if (!writes_) Cursor::Update(column, value);
  RequireRow();
  Session& session = Owner();
  session.BeforeRowWrite();
  auto place = updates_.find(column);
  if (place == updates_.end()) {
    Statement update(session.Engine(), "UPDATE main." + QuoteIdentifier(table_.table) + " SET " +
                                           QuoteIdentifier(table_.columns[column]) +
                                           " = ?1 WHERE _rowid_ = ?2");
    place = updates_.emplace(column, std::move(update)).first;
  }
  Statement& update = place->second;
  update.BindValue(1, value);
  update.Bind(2, keys_[Position()]);
  update.Step();
  update.Reset();
  if (sqlite3_changes64(session.Engine().Handle()) == 0) RaiseDeleted();
}

void KeysetCursor::FreeStatements() noexcept {
  read_.reset();
  updates_.clear();
}

void KeysetCursor::RaiseDeleted() {
  throw velmar::RuntimeError(velmar::kRecordDeleted, "El registro activo ha sido eliminado.",
                             "ADODB.Recordset");
}

}  // namespace ADODB
