#include "platform/ado/KeysetCursor.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/ado/Session.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/OperationObserver.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

using velmar::jet::QuoteIdentifier;

/// Rows that are read at once, and how far apart their keys may be for it.
constexpr std::size_t kRowsAhead = 64;
constexpr std::int64_t kKeysAhead = 4 * std::int64_t{kRowsAhead};

}  // namespace

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
  cellOf_.resize(table_.columns.size(), -1);
}

KeysetCursor::~KeysetCursor() = default;

void KeysetCursor::MoveFirst() {
  CountedCursor::MoveFirst();
  rows_.clear();  // Others may have written the first row since it was the current one.
}

Variant KeysetCursor::StoredValue(std::size_t column) {
  if (cellOf_[column] < 0) Want(column);
  if (!IsRead()) Read();
  const std::size_t row = Position() - firstRead_;
  if (!rows_[row].found) RaiseDeleted();
  return cells_[row * width_ + static_cast<std::size_t>(cellOf_[column])];
}

bool KeysetCursor::IsRead() const {
  return Position() >= firstRead_ && Position() - firstRead_ < rows_.size() &&
         rows_[Position() - firstRead_].current && moment_ == Owner().Engine().Moment();
}

/// Adds a column to those that are read: what is asked for in one row is asked for in the next ones.
void KeysetCursor::Want(std::size_t column) {
  const std::string wanted = wanted_ + ", " + QuoteIdentifier(table_.columns[column]);
  Statement read(Owner().Engine(), "SELECT _rowid_" + wanted + " FROM main." + QuoteIdentifier(table_.table) +
                                       " WHERE _rowid_ BETWEEN ?1 AND ?2 ORDER BY _rowid_");
  rows_.clear();
  read_.emplace(std::move(read));
  wanted_ = wanted;
  cellOf_[column] = static_cast<int>(width_++);
}

/// The current row and those behind it that stand close together in the table.
std::size_t KeysetCursor::RowsToRead() const {
  if (!Owner().Engine().InTransaction()) return 1;
  const std::int64_t first = keys_[Position()];
  std::size_t count = 1;
  while (count < kRowsAhead && Position() + count < keys_.size()) {
    const std::int64_t key = keys_[Position() + count];
    // Written so, the difference cannot overflow.
    if (key <= keys_[Position() + count - 1] || key > first + std::min(kKeysAhead, INT64_MAX - first)) break;
    ++count;
  }
  return count;
}

void KeysetCursor::Read() {
  velmar::OperationObserver::Announce(velmar::Operation::kReadRow, table_.table);
  const std::size_t count = RowsToRead();
  rows_.clear();
  cells_.resize(count * width_);
  texts_.resize(count * width_);
  firstRead_ = Position();
  moment_ = Owner().Engine().Moment();
  std::vector<ReadRow> rows(count, ReadRow{false, true});
  read_->Bind(1, keys_[firstRead_]);
  read_->Bind(2, keys_[firstRead_ + count - 1]);
  std::size_t row = 0;
  while (read_->Step()) {
    const std::int64_t key = read_->Long(0);
    while (row < count && keys_[firstRead_ + row] < key) ++row;
    if (row == count || keys_[firstRead_ + row] != key) continue;
    rows[row].found = true;
    for (std::size_t cell = 0; cell < width_; ++cell) {
      const int column = static_cast<int>(cell) + 1;
      // In this order: taking bytes for a text makes a text of them.
      texts_[row * width_ + cell] = read_->IsText(column);
      cells_[row * width_ + cell] = ValueOf(*read_, column);
    }
  }
  read_->Reset();
  rows_ = std::move(rows);
}

void KeysetCursor::Update(std::size_t column, const Variant& value) {
  if (!writes_) Cursor::Update(column, value);
  RequireRow();
  Session& session = Owner();
  velmar::OperationObserver::Announce(velmar::Operation::kWriteRow, table_.table);
  session.BeforeRowWrite();
  Database& database = session.Engine();
  const bool read = IsRead();
  const std::int64_t before = database.Moment();
  Writer& writer = WriterOf(column);
  if (!WriteDirectly(writer, column, value)) {
    writer.update.BindValue(1, value);
    writer.update.Bind(2, keys_[Position()]);
    writer.update.Step();
    writer.update.Reset();
    if (sqlite3_changes64(database.Handle()) == 0) RaiseDeleted();
  }
  // If nothing but this row has changed, the other rows are still as they were read. A trigger writes more.
  if (!read || database.Moment() != before + 1) return;
  moment_ = database.Moment();
  rows_[Position() - firstRead_].current = false;
}

KeysetCursor::Writer& KeysetCursor::WriterOf(std::size_t column) {
  const auto known = writers_.find(column);
  if (known != writers_.end()) return known->second;
  Database& database = Owner().Engine();
  const std::string& name = table_.columns[column];
  Statement update(database, "UPDATE main." + QuoteIdentifier(table_.table) + " SET " +
                                 QuoteIdentifier(name) + " = ?1 WHERE _rowid_ = ?2");
  auto direct = DirectCell::Suits(database, table_.table, name)
                    ? std::make_unique<DirectCell>(database, table_.table, name)
                    : nullptr;
  return writers_.emplace(column, Writer{std::move(update), std::move(direct)}).first->second;
}

/// Only in the batch, which ends before any other statement runs.
bool KeysetCursor::WriteDirectly(Writer& writer, std::size_t column, const Variant& value) {
  if (!writer.direct || !value.IsText() || !Owner().InBatch() || !HoldsText(column)) return false;
  return writer.direct->Write(keys_[Position()], value.Text());
}

/// True if the current row has been read and a text stands in the column.
bool KeysetCursor::HoldsText(std::size_t column) const {
  if (cellOf_[column] < 0 || !IsRead()) return false;
  const std::size_t row = Position() - firstRead_;
  return rows_[row].found && texts_[row * width_ + static_cast<std::size_t>(cellOf_[column])];
}

void KeysetCursor::BeforeCommit() noexcept {
  for (auto& [column, writer] : writers_) {
    if (writer.direct) writer.direct->Close();
  }
}

void KeysetCursor::FreeStatements() noexcept {
  read_.reset();
  writers_.clear();
}

void KeysetCursor::RaiseDeleted() {
  throw velmar::RuntimeError(velmar::kRecordDeleted, "El registro activo ha sido eliminado.",
                             "ADODB.Recordset");
}

}  // namespace ADODB
