#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/error/RuntimeError.h"

struct sqlite3;

namespace ADODB {

/// Marks in a file's header (application id): how the file is to be kept. A file with any other mark is taken
/// as a host database.
inline constexpr std::int64_t kHostMark = 0x56454C4D;
inline constexpr std::int64_t kScratchMark = 0x56454C53;

/// Device and number of a file: the same for all spellings of its path.
struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t number = 0;
  bool operator==(const FileIdentity&) const = default;
};

/// kDatabaseNotFound if there is no such file.
FileIdentity IdentityOf(const std::string& path);

/// One open engine handle: the main file and the files that are attached to it, each under an alias. All
/// opening, attaching and running of engine text goes through here and Statement.
class Database {
 public:
  /// Opens an existing database file. kNotADatabase, kPermissionDenied, kDatabaseLocked.
  explicit Database(const std::string& path);
  /// Opens a file of no bytes, which the first statement makes a database.
  struct New {};
  Database(const std::string& path, New);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  sqlite3* Handle() const noexcept { return handle_.get(); }
  const std::string& Path() const noexcept { return files_.at("main"); }
  const FileIdentity& Identity() const noexcept { return identity_; }
  /// True if the main file is marked as scratch.
  bool IsScratch() const noexcept { return scratch_; }

  /// Runs engine text that gives no rows.
  void Run(const std::string& sql);
  /// The one number that engine text gives; 0 if it gives no row.
  std::int64_t Number(const std::string& sql);

  void Attach(const std::string& path, const std::string& alias);
  /// False if a statement or transaction still uses the file.
  bool TryDetach(const std::string& alias) noexcept;
  /// The file behind an alias, empty if there is none.
  std::string FileOf(std::string_view alias) const;
  /// The file that is being read alone, by its alias; empty if a statement runs that may use several.
  const std::string& Concern() const noexcept { return concern_; }
  /// Main file and attached files, by their aliases.
  const std::map<std::string, std::string, std::less<>>& Files() const noexcept { return files_; }
  /// The table that the last refused statement was not to see.
  const std::string& RefusedTable() const noexcept { return refused_; }

  bool InTransaction() const noexcept;
  /// Puts the journal of the main file, if that is scratch, where a file of its present size has it. Nothing
  /// inside a transaction.
  void PlaceJournal();

  /// Grows with every row that this connection writes; what a transaction takes back does not lower it.
  std::int64_t OwnChanges() const noexcept;
  /// Differs from an earlier one if another connection has written to the main file in between.
  std::int64_t OthersChanges();
  /// Rows that were read at the same moment as this one still stand, but for what others write outside of
  /// this connection's transactions. It grows with each row that this connection writes, by one.
  std::int64_t Moment() const noexcept { return OwnChanges() + breaks_; }
  /// For what may change rows without writing them: a transaction begins or ends, a definition changes.
  void NextMoment() noexcept { ++breaks_; }
  /// For a row that was written past the engine's own count.
  void NoteDirectChange() noexcept { ++directChanges_; }

  /// While one exists, texts may name the system table, which is closed to statements otherwise.
  class SystemAccess {
   public:
    explicit SystemAccess(Database& database) noexcept : database_(&database) { ++database_->systemAccess_; }
    ~SystemAccess() { --database_->systemAccess_; }
    SystemAccess(const SystemAccess&) = delete;
    SystemAccess& operator=(const SystemAccess&) = delete;

   private:
    Database* database_;
  };

  /// While one exists, texts may read the engine's own tables, which do not exist for statements. Definitions
  /// need it too, since the engine reads them itself then.
  class EngineAccess {
   public:
    explicit EngineAccess(Database& database) noexcept : database_(&database) { ++database_->engineAccess_; }
    ~EngineAccess() { --database_->engineAccess_; }
    EngineAccess(const EngineAccess&) = delete;
    EngineAccess& operator=(const EngineAccess&) = delete;

   private:
    Database* database_;
  };

  /// While one exists, failures are about this file.
  class Concerning {
   public:
    Concerning(Database& database, const std::string& alias)
        : database_(&database), before_(std::exchange(database.concern_, alias)) {}
    ~Concerning() { database_->concern_.swap(before_); }
    Concerning(const Concerning&) = delete;
    Concerning& operator=(const Concerning&) = delete;

   private:
    Database* database_;
    std::string before_;
  };

 private:
  struct Closer {
    void operator()(sqlite3* handle) const noexcept;
  };
  static int Authorize(void* self, int action, const char* first, const char* second, const char* alias,
                       const char* trigger);
  bool IsEngineTable(const char* name, const char* alias) const;
  void OpenHandle();
  void Configure(const std::string& alias);
  void PlaceScratchJournal(const std::string& alias);

  std::map<std::string, std::string, std::less<>> files_;
  FileIdentity identity_;
  std::unique_ptr<sqlite3, Closer> handle_;
  bool scratch_ = false;
  int systemAccess_ = 0;
  int engineAccess_ = 0;
  std::string concern_;
  std::string refused_;
  std::int64_t directChanges_ = 0;
  std::int64_t breaks_ = 0;
};

}  // namespace ADODB
