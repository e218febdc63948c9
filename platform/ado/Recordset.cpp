#include "platform/ado/Recordset.h"

#include <utility>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/Cursor.h"
#include "platform/ado/Session.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;

constexpr const char* kSource = "ADODB.Recordset";

[[noreturn]] void RaiseProperty(const char* property, long value) {
  throw RuntimeError(
      velmar::kInvalidPropertyValue,
      "El valor " + std::to_string(value) + " no es válido para la propiedad " + property + ".", kSource);
}

}  // namespace

Recordset::Recordset() = default;

Recordset::Recordset(std::unique_ptr<Cursor> cursor) : cursor_(std::move(cursor)), cursorType_(kOpenStatic) {}

Recordset::~Recordset() = default;

void Recordset::CursorLocation(long location) {
  RequireClosed();
  if (location != kUseServer && location != kUseClient) RaiseProperty("CursorLocation", location);
  cursorLocation_ = location;
}

void Recordset::CacheSize(long rows) {
  if (rows < 1) RaiseProperty("CacheSize", rows);
  cacheSize_ = rows;
}

void Recordset::CursorType(long type) {
  RequireClosed();
  if (type < kOpenForwardOnly || type > kOpenStatic) RaiseProperty("CursorType", type);
  cursorType_ = type;
}

void Recordset::LockType(long type) {
  RequireClosed();
  if (type < kLockReadOnly || type > 4) RaiseProperty("LockType", type);
  lockType_ = type;
}

void Recordset::ActiveConnection(std::shared_ptr<Connection> connection) {
  RequireClosed();
  connection_ = std::move(connection);
}

void Recordset::PageSize(long rows) {
  if (rows < 1) RaiseProperty("PageSize", rows);
  pageSize_ = rows;
}

void Recordset::Open(std::string_view source, std::shared_ptr<Connection> connection, long cursorType,
                     long lockType, long /*options*/) {
  RequireClosed();
  if (connection) connection_ = std::move(connection);
  if (!connection_) {
    throw RuntimeError(velmar::kObjectNotSet,
                       "El conjunto de registros no tiene conexión con la que abrirse.", kSource);
  }
  if (cursorType != -1) CursorType(cursorType);
  if (lockType != -1) LockType(lockType);
  inserter_.reset();
  cursor_ = connection_->OpenSession().OpenCursor(source, cursorType_, lockType_);
}

long Recordset::State() const noexcept {
  return cursor_ && cursor_->IsOpen() ? kStateOpen : kStateClosed;
}

void Recordset::Close() {
  OpenCursor().Finish();
  inserter_.reset();
  cursor_.reset();
}

bool Recordset::Eof() const {
  return OpenCursor().Eof();
}

bool Recordset::Bof() const {
  return OpenCursor().Bof();
}

void Recordset::MoveNext() {
  OpenCursor().MoveNext();
}

void Recordset::MoveFirst() {
  OpenCursor().MoveFirst();
}

ADODB::Fields Recordset::Fields() const {
  return ADODB::Fields(OpenCursor());
}

Field Recordset::Fields(long index) const {
  return Fields().Item(index);
}

Field Recordset::Fields(std::string_view name) const {
  return Fields().Item(name);
}

long Recordset::RecordCount() const {
  return OpenCursor().RecordCount();
}

long Recordset::PageCount() const {
  const long rows = RecordCount();
  return rows < 0 ? -1 : (rows + pageSize_ - 1) / pageSize_;
}

void Recordset::Update(std::string_view field, const Variant& value) {
  Cursor& cursor = OpenCursor();
  cursor.Update(cursor.ColumnIndex(field), value);
}

void Recordset::AddNew(const std::vector<std::string>& fields, const std::vector<Variant>& values) {
  Cursor& cursor = OpenCursor();
  if (cursor.Table().empty()) {
    throw RuntimeError(
        velmar::kReadOnly,
        "No se pueden añadir registros: el conjunto debe abrirse sobre una sola tabla y con bloqueo "
        "optimista.",
        kSource);
  }
  if (!inserter_ || insertedFields_ != fields) {
    inserter_ = std::make_unique<BulkInsert>(*connection_, cursor.Table(), fields);
    insertedFields_ = fields;
  }
  inserter_->Row(values);
}

Cursor& Recordset::OpenCursor() const {
  if (cursor_ && cursor_->IsOpen()) return *cursor_;
  throw RuntimeError(
      velmar::kObjectClosed,
      "La operación no se permite si el conjunto de registros está cerrado. Ábralo antes con Open.", kSource);
}

void Recordset::RequireClosed() const {
  if (State() == kStateClosed) return;
  throw RuntimeError(
      velmar::kObjectOpen,
      "La operación no se permite con el conjunto de registros abierto. Ciérrelo antes con Close.", kSource);
}

}  // namespace ADODB
