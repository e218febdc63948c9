#include "platform/ado/Session.h"

#include <sqlite3.h>

#include <optional>

#include "platform/ado/DatabasePassword.h"
#include "platform/ado/ForwardCursor.h"
#include "platform/ado/KeyedTable.h"
#include "platform/ado/KeysetCursor.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/RowCopy.h"
#include "platform/ado/SessionUser.h"
#include "platform/ado/Statement.h"
#include "platform/ado/StaticCursor.h"
#include "platform/ado/StoredCursor.h"
#include "platform/ado/TableNames.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/OperationObserver.h"
#include "platform/jet/NameMap.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;
using velmar::jet::StatementKind;
using velmar::jet::Translation;

constexpr const char* kSource = "ADODB.Connection";

bool Defines(StatementKind kind) {
  switch (kind) {
    case StatementKind::kCreateTable:
    case StatementKind::kCreateIndex:
    case StatementKind::kAlterTable:
    case StatementKind::kDropTable:
    case StatementKind::kDropIndex:
      return true;
    default:
      return false;
  }
}

}  // namespace

Session::Session(const std::string& path)
    : database_(std::make_unique<Database>(path)), attachments_(*database_), distinct_(*database_) {}

std::shared_ptr<Session> Session::Open(const std::string& path, const std::string& password) {
  std::shared_ptr<Session> session(new Session(path));
  RequirePassword(session->Engine(), "main", session->Engine().Identity(), password);
  return session;
}

Session::~Session() {
  try {
    EndBatch();
  } catch (const std::exception&) {
    // Who closes the connection, rather than letting it go, is told.
  }
}

void Session::Close() {
  if (transaction_) {
    throw RuntimeError(
        velmar::kTransactionOpen,
        "No se puede cerrar la conexión con una transacción abierta: termine antes con CommitTrans o "
        "RollbackTrans.",
        kSource);
  }
  EndBatch();
  LetGoOfAll();
}

void Session::LetGoOfAll() noexcept {
  for (SessionUser* user : std::exchange(users_, {})) user->LetGo();
  attachments_.Release();
}

void Session::Begin() {
  if (transaction_) {
    throw RuntimeError(velmar::kTransactionOpen, "Ya hay una transacción abierta en esta conexión.", kSource);
  }
  EndBatch();
  database_->PlaceJournal();
  database_->Run("BEGIN");
  database_->NextMoment();
  transaction_ = true;
}

void Session::Commit() {
  if (!transaction_) {
    throw RuntimeError(velmar::kNoTransaction, "No hay ninguna transacción abierta que confirmar.", kSource);
  }
  if (!database_->InTransaction()) {
    transaction_ = false;
    throw RuntimeError(
        velmar::kNoTransaction,
        "La transacción se deshizo entera por un error anterior: no se ha guardado ninguno de sus "
        "cambios.",
        kSource);
  }
  velmar::OperationObserver::Announce(velmar::Operation::kCommit, database_->Path());
  database_->Run("COMMIT");
  database_->NextMoment();
  transaction_ = false;
  attachments_.Release();
}

void Session::Rollback() {
  if (!transaction_) {
    throw RuntimeError(velmar::kNoTransaction, "No hay ninguna transacción abierta que deshacer.", kSource);
  }
  if (database_->InTransaction()) database_->Run("ROLLBACK");
  database_->NextMoment();
  transaction_ = false;
  attachments_.Release();
}

void Session::BeforeRowWrite() {
  if (putOff_) EndBatch();
  if (transaction_ || batch_ || !database_->IsScratch()) return;
  BeginBatch();
}

void Session::BeginBatch() {
  database_->PlaceJournal();
  database_->Run("BEGIN IMMEDIATE");
  database_->NextMoment();
  batch_ = true;
}

void Session::EndBatch() {
  if (!batch_) return;
  for (SessionUser* user : users_) user->BeforeCommit();
  // Taken out first: a copy that fails is told once, and is not made. Few are made, so it searches again.
  if (const auto copy = std::exchange(putOff_, std::nullopt))
    RowCopy(*database_, copy->Translated(), distinct_).Run();
  database_->NextMoment();
  if (database_->InTransaction()) {
    velmar::OperationObserver::Announce(velmar::Operation::kCommit, database_->Path());
    database_->Run("COMMIT");
    batch_ = false;
    return;
  }
  batch_ = false;
  throw RuntimeError(velmar::kEngineFailure,
                     "Se han perdido los últimos cambios en el fichero de trabajo " + database_->Path() +
                         " por un error anterior del disco.",
                     kSource);
}

Translation Session::Translate(std::string_view text, bool* others) {
  bool named = false;
  const auto aliases = [&](const std::string& path, const std::string& password) {
    EndBatch();  // The engine does not set the durability of a file that comes into a transaction.
    const std::string alias = attachments_.AliasFor(path, password);
    named = named || alias != "main";
    return alias;
  };
  Translation translation = velmar::jet::Translate(text, aliases);
  if (velmar::jet::NeedsNameMap(text)) {
    velmar::jet::NameMap names;
    attachments_.AddNames(names);
    translation = velmar::jet::Translate(text, aliases, &names);
  }
  if (others != nullptr) *others = named;
  return translation;
}

std::unique_ptr<Cursor> Session::Execute(std::string_view text, long* affected) {
  velmar::OperationObserver::Announce(velmar::Operation::kStatement, text);
  const Attachments::Scope scope(attachments_);
  bool others = false;
  const Translation translation = Translate(text, &others);
  if (affected != nullptr) *affected = 0;
  if (putOff_ && TakeSourceInsteadOfCopy(translation)) return nullptr;
  if (translation.kind == StatementKind::kUpdate && !others) {
    BeforeRowWrite();
  } else {
    EndBatch();
    database_->PlaceJournal();
  }
  std::int64_t rows = 0;
  std::unique_ptr<Cursor> cursor;
  switch (translation.kind) {
    case StatementKind::kSelect:
      cursor = std::make_unique<StoredCursor>(shared_from_this(), translation);
      rows = cursor->RecordCount();
      break;
    case StatementKind::kSelectInto:
    case StatementKind::kInsertSelect:
      if (PutOff(translation, affected != nullptr ? &rows : nullptr)) break;
      rows = RowCopy(*database_, translation, distinct_).Run();
      break;
    default:
      rows = Run(translation);
  }
  if (affected != nullptr) *affected = static_cast<long>(rows);
  return cursor;
}

/// False for all but the statements that are put off; rows, if given: how many the copy has.
bool Session::PutOff(const Translation& translation, std::int64_t* rows) {
  if (transaction_ || !database_->IsScratch() || !translation.distinctTable) return false;
  BeginBatch();
  try {
    auto copy = PutOffCopy::Of(*database_, translation, distinct_);
    if (copy && rows != nullptr) *rows = copy->RowCount();
    putOff_ = std::move(copy);
  } catch (...) {
    EndBatch();
    throw;
  }
  if (!putOff_) EndBatch();
  return putOff_.has_value();
}

/// If the statement drops the source of the copy that is put off, the source becomes the copy.
bool Session::TakeSourceInsteadOfCopy(const Translation& translation) {
  if (translation.kind != StatementKind::kDropTable || translation.target->alias != "main" ||
      !SameName(translation.target->table, putOff_->Source())) {
    return false;
  }
  database_->NextMoment();
  distinct_.Forget();
  putOff_->TakeSource();
  const auto copy = std::exchange(putOff_, std::nullopt);
  // Asked for while nobody else can write to the file: what comes behind the copy is a change.
  const std::int64_t othersChanges = database_->OthersChanges();
  EndBatch();
  if (copy->IsDistinct()) distinct_.Note(copy->Target(), othersChanges);
  return true;
}

/// What is neither a SELECT nor a copy of rows; the number of rows that were written.
std::int64_t Session::Run(const Translation& translation) {
  if (translation.kind == StatementKind::kCreateTable) RefuseExistingTable(*database_, *translation.target);
  const bool dropsTable = translation.kind == StatementKind::kDropTable;
  // Another table's end changes nothing about a table that is remembered.
  if (!dropsTable || distinct_.IsOf(translation.target->table)) distinct_.Forget();
  std::optional<Database::EngineAccess> access;
  if (Defines(translation.kind)) {
    access.emplace(*database_);
    database_->NextMoment();
  }
  const std::int64_t before = sqlite3_total_changes64(database_->Handle());
  {
    Statement statement(*database_, translation.sql, &translation);
    while (statement.Step()) {
    }
  }
  const bool wrote = sqlite3_total_changes64(database_->Handle()) != before;
  return wrote ? sqlite3_changes64(database_->Handle()) : 0;
}

std::unique_ptr<Cursor> Session::OpenCursor(std::string_view source, long cursorType, long lockType) {
  velmar::OperationObserver::Announce(velmar::Operation::kOpenRows, source);
  EndBatch();
  const Attachments::Scope scope(attachments_);
  const std::string text = SelectOf(source);
  bool others = false;
  Translation translation = Translate(text, &others);
  if (translation.kind != StatementKind::kSelect) {
    throw RuntimeError(
        velmar::kInvalidProcedureCall,
        "Un conjunto de registros sólo se abre con una sentencia SELECT o con el nombre de una tabla.",
        "ADODB.Recordset");
  }
  auto table = others ? std::nullopt : KeyedTable::Of(*this, text, translation);
  std::unique_ptr<Cursor> cursor;
  if (cursorType == kOpenForwardOnly) {
    cursor = std::make_unique<ForwardCursor>(shared_from_this(), std::move(translation));
  } else if (cursorType != kOpenStatic && table) {
    cursor =
        std::make_unique<KeysetCursor>(shared_from_this(), translation, *table, lockType != kLockReadOnly);
  } else if (others) {
    cursor = std::make_unique<StoredCursor>(shared_from_this(), translation);
  } else {
    // The keys alone are counted faster than whole rows.
    const std::string counted = table ? Translate(table->keys).sql : translation.sql;
    cursor = std::make_unique<StaticCursor>(shared_from_this(), std::move(translation), counted);
  }
  if (table && lockType != kLockReadOnly) cursor->Table(table->table);
  return cursor;
}

}  // namespace ADODB
