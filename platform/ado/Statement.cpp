#include "platform/ado/Statement.h"

#include <sqlite3.h>

#include <utility>

#include "platform/ado/Database.h"
#include "platform/ado/EngineFailure.h"

namespace ADODB {
namespace {

std::string TextOf(const char* text) {
  return text == nullptr ? std::string() : std::string(text);
}

}  // namespace

Statement::Statement(Database& database, std::string_view sql, const velmar::jet::Translation* translation)
    : database_(&database), translation_(translation) {
  const int code = sqlite3_prepare_v3(database.Handle(), sql.data(), static_cast<int>(sql.size()),
                                      SQLITE_PREPARE_PERSISTENT, &handle_, nullptr);
  Require(code);
}

Statement::~Statement() {
  sqlite3_finalize(handle_);
}

Statement::Statement(Statement&& other) noexcept
    : database_(other.database_),
      translation_(other.translation_),
      handle_(std::exchange(other.handle_, nullptr)) {}

bool Statement::Step() {
  const int code = sqlite3_step(handle_);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  const velmar::RuntimeError failure = EngineFailure(*database_, code, translation_);
  sqlite3_reset(handle_);
  throw failure;
}

void Statement::Reset() noexcept {
  sqlite3_reset(handle_);
}

void Statement::Bind(int parameter, std::int64_t value) {
  Require(sqlite3_bind_int64(handle_, parameter, value));
}

void Statement::Bind(int parameter, double value) {
  Require(sqlite3_bind_double(handle_, parameter, value));
}

void Statement::Bind(int parameter, std::string_view text) {
  const char* data = text.data() == nullptr ? "" : text.data();
  Require(sqlite3_bind_text64(handle_, parameter, data, text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Statement::BindStatic(int parameter, std::string_view text) {
  const char* data = text.data() == nullptr ? "" : text.data();
  Require(sqlite3_bind_text64(handle_, parameter, data, text.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void Statement::BindNull(int parameter) {
  Require(sqlite3_bind_null(handle_, parameter));
}

void Statement::BindValue(int parameter, const Variant& value) {
  if (value.IsNull()) {
    BindNull(parameter);
  } else if (value.IsText()) {
    Bind(parameter, value.AsText());
  } else if (value.IsDouble()) {
    Bind(parameter, value.AsDouble());
  } else {
    Bind(parameter, std::int64_t{value.AsLong()});
  }
}

int Statement::ColumnCount() const noexcept {
  return sqlite3_column_count(handle_);
}

std::string Statement::ColumnName(int column) const {
  return TextOf(sqlite3_column_name(handle_, column));
}

std::string Statement::DeclaredType(int column) const {
  return TextOf(sqlite3_column_decltype(handle_, column));
}

std::string Statement::OriginTable(int column) const {
  return TextOf(sqlite3_column_table_name(handle_, column));
}

std::string Statement::OriginColumn(int column) const {
  return TextOf(sqlite3_column_origin_name(handle_, column));
}

Statement::Kind Statement::KindOf(int column) const noexcept {
  switch (sqlite3_column_type(handle_, column)) {
    case SQLITE_NULL:
      return Kind::kNull;
    case SQLITE_INTEGER:
      return Kind::kWhole;
    case SQLITE_FLOAT:
      return Kind::kDouble;
    default:
      return Kind::kText;
  }
}

bool Statement::IsText(int column) const noexcept {
  return sqlite3_column_type(handle_, column) == SQLITE_TEXT;
}

std::int64_t Statement::Long(int column) const noexcept {
  return sqlite3_column_int64(handle_, column);
}

double Statement::Double(int column) const noexcept {
  return sqlite3_column_double(handle_, column);
}

std::string_view Statement::Text(int column) const noexcept {
  // The engine asks for the text first: that call may convert, and the length is of its result.
  const unsigned char* text = sqlite3_column_text(handle_, column);
  const int size = sqlite3_column_bytes(handle_, column);
  return text == nullptr
             ? std::string_view()
             : std::string_view(reinterpret_cast<const char*>(text), static_cast<std::size_t>(size));
}

Variant ValueOf(const Statement& statement, int column) {
  switch (statement.KindOf(column)) {
    case Statement::Kind::kNull:
      return {};
    case Statement::Kind::kWhole:
      return static_cast<long long>(statement.Long(column));
    case Statement::Kind::kDouble:
      return statement.Double(column);
    case Statement::Kind::kText:
      break;
  }
  return statement.Text(column);
}

void Statement::Require(int code) const {
  if (code != SQLITE_OK) throw EngineFailure(*database_, code, translation_);
}

}  // namespace ADODB
