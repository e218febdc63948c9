#include "platform/ado/Connection.h"

#include <filesystem>
#include <utility>

#include "platform/ado/Cursor.h"
#include "platform/ado/DatabasePassword.h"
#include "platform/ado/EngineFailure.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/Session.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/Paths.h"
#include "platform/text/Collation.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;
using velmar::text::EqualText;

constexpr const char* kSource = "ADODB.Connection";

std::string RealPath(const std::string& path) {
  const auto found = velmar::files::Resolve(path);
  return found ? std::filesystem::absolute(*found).string() : std::string();
}

}  // namespace

Connection::Connection() = default;

Connection::Connection(const std::string& connectionString) {
  ConnectionString(connectionString);
}

Connection::~Connection() {
  if (!session_) return;
  try {
    if (session_->InTransaction()) session_->Rollback();
    session_->Close();
  } catch (const RuntimeError&) {
    session_->LetGoOfAll();
  }
}

long Connection::State() const noexcept {
  return session_ ? kStateOpen : kStateClosed;
}

void Connection::Open(const std::string& text, const std::string& user, const std::string& password,
                      long /*options*/) {
  if (!text.empty()) ConnectionString(text);
  if (session_) {
    throw RuntimeError(velmar::kObjectOpen, "La conexión ya está abierta.", kSource);
  }
  if (!(user.empty() || EqualText(user, "Admin")) || !password.empty()) {
    throw RuntimeError(
        velmar::kWrongPassword,
        "El usuario o su contraseña no son válidos: las bases de datos no tienen cuentas de usuario. La "
        "contraseña de la base de datos va en la cadena de conexión.",
        kSource);
  }
  const std::string path = settings_.DataSource();
  const std::string found = RealPath(path);
  if (found.empty()) throw DatabaseNotFound(path);
  session_ = Session::Open(found, settings_.Value(kPasswordKey));
  realPath_ = found;
}

void Connection::Close() {
  OpenSession().Close();
  session_.reset();
}

const std::string& Connection::ConnectionString() const noexcept {
  return text_;
}

void Connection::ConnectionString(const std::string& text) {
  if (session_) {
    throw RuntimeError(velmar::kObjectOpen,
                       "La cadena de conexión no se puede cambiar con la conexión abierta.", kSource);
  }
  settings_ = ConnectionText(text);
  text_ = text;
  realPath_.clear();
}

std::shared_ptr<Recordset> Connection::Execute(std::string_view text, long* affected, long /*options*/) {
  return std::shared_ptr<Recordset>(new Recordset(OpenSession().Execute(text, affected)));
}

Property Connection::Properties(std::string_view name) {
  for (const std::string_view known : {kDataSourceKey, kDataSourceNameKey, kPasswordKey, kScratchKey}) {
    if (EqualText(name, known)) return Property(*this, std::string(known));
  }
  if (settings_.Find(name)) return Property(*this, std::string(name));
  throw RuntimeError(velmar::kItemNotInCollection,
                     "La conexión no tiene una propiedad «" + std::string(name) + "».", kSource);
}

void Connection::BeginTrans() {
  OpenSession().Begin();
}

void Connection::CommitTrans() {
  OpenSession().Commit();
}

void Connection::RollbackTrans() {
  OpenSession().Rollback();
}

void Connection::SetDatabasePassword(const std::string& password) {
  Session& session = OpenSession();
  session.EndBatch();
  StorePassword(session.Engine(), password);
  text_ = settings_.Set(kPasswordKey, password).Text();
}

Session& Connection::OpenSession() const {
  if (session_) return *session_;
  throw RuntimeError(velmar::kObjectClosed,
                     "La operación no se permite si la conexión está cerrada. Ábrala antes con "
                     "Open.",
                     kSource);
}

std::string Connection::PropertyValue(const std::string& name) const {
  if (name != kDataSourceNameKey) return settings_.Value(name);
  if (!realPath_.empty()) return realPath_;
  const std::string path = settings_.Value(kDataSourceKey);
  const std::string found = path.empty() ? path : RealPath(path);
  return found.empty() ? path : found;
}

void Connection::PropertyValue(const std::string& name, const std::string& value) {
  if (name == kDataSourceNameKey) {
    throw RuntimeError(velmar::kInvalidPropertyValue,
                       "La propiedad «Data Source Name» es de sólo lectura: cambie «Data Source».", kSource);
  }
  ConnectionText changed = settings_;
  ConnectionString(changed.Set(name, value).Text());
}

}  // namespace ADODB
