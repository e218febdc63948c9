#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/Attachments.h"
#include "platform/ado/Database.h"
#include "platform/ado/DistinctMemory.h"
#include "platform/ado/PutOffCopy.h"

namespace velmar::jet {
struct Translation;
}

namespace ADODB {

class Cursor;
class SessionUser;

/// What an open connection is: its database, its transaction, and the place through which every statement
/// goes.
///
/// In a scratch database updates, of single rows and by statements, are gathered in one transaction, the
/// batch, since their commits would cost more than the work itself. Whatever else happens on the connection
/// ends the batch first, and so do closing a recordset and closing the connection: nothing that was written
/// is lost but by the death of the process.
class Session : public std::enable_shared_from_this<Session> {
 public:
  /// Opens the file and checks its password.
  static std::shared_ptr<Session> Open(const std::string& path, const std::string& password);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  Database& Engine() noexcept { return *database_; }

  /// Ends the batch, then closes all that lives on the session. kTransactionOpen inside a transaction.
  void Close();
  /// The same without the batch's end and without failure, for destructors.
  void LetGoOfAll() noexcept;

  bool InTransaction() const noexcept { return transaction_; }
  void Begin();
  void Commit();
  void Rollback();

  /// To be called before rows are updated.
  void BeforeRowWrite();
  void EndBatch();
  /// True while rows are gathered in the batch: nobody else writes to the file until it ends.
  bool InBatch() const noexcept { return batch_ && database_->InTransaction(); }

  /// Attaches what the text names; an Attachments::Scope of the caller lets go of it. others, if given, tells
  /// whether the text names another database.
  velmar::jet::Translation Translate(std::string_view text, bool* others = nullptr);

  /// Runs a statement; the rows of a SELECT, nothing otherwise.
  std::unique_ptr<Cursor> Execute(std::string_view text, long* affected);
  /// Opens a SELECT or a table with the cursor type and lock of ADO.
  std::unique_ptr<Cursor> OpenCursor(std::string_view source, long cursorType, long lockType);

  Attachments& Others() noexcept { return attachments_; }

  void Register(SessionUser& user) { users_.push_back(&user); }
  void Unregister(SessionUser& user) noexcept { std::erase(users_, &user); }

 private:
  explicit Session(const std::string& path);
  std::int64_t Run(const velmar::jet::Translation& translation);
  void BeginBatch();
  bool PutOff(const velmar::jet::Translation& translation, std::int64_t* rows);
  bool TakeSourceInsteadOfCopy(const velmar::jet::Translation& translation);

  std::unique_ptr<Database> database_;
  Attachments attachments_;
  DistinctMemory distinct_;
  std::vector<SessionUser*> users_;
  bool transaction_ = false;
  bool batch_ = false;
  std::optional<PutOffCopy> putOff_;  ///< only in the batch, as its last statement
};

}  // namespace ADODB
