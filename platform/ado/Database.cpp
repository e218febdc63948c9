#include "platform/ado/Database.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include "platform/ado/EngineFailure.h"
#include "platform/ado/Statement.h"
#include "platform/ado/TableNames.h"
#include "platform/error/OperationObserver.h"
#include "platform/jet/Engine.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

constexpr int kBusyMilliseconds = 5000;
constexpr std::int64_t kMostBytesWithJournalInMemory = std::int64_t{16} * 1024 * 1024;

void RequireDatabaseFile(const std::string& path) {
  struct stat information {};
  if (::stat(path.c_str(), &information) == 0 && S_ISREG(information.st_mode) && information.st_size > 0)
    return;
  throw NotADatabase(path);
}

}  // namespace

FileIdentity IdentityOf(const std::string& path) {
  struct stat information {};
  if (::stat(path.c_str(), &information) != 0) throw DatabaseNotFound(path);
  return {static_cast<std::uint64_t>(information.st_dev), static_cast<std::uint64_t>(information.st_ino)};
}

void Database::Closer::operator()(sqlite3* handle) const noexcept {
  sqlite3_close_v2(handle);
}

Database::Database(const std::string& path, New) : files_{{"main", path}}, identity_(IdentityOf(path)) {
  OpenHandle();
}

Database::Database(const std::string& path) : files_{{"main", path}}, identity_(IdentityOf(path)) {
  RequireDatabaseFile(path);
  OpenHandle();
}

void Database::OpenHandle() {
  velmar::OperationObserver::Announce(velmar::Operation::kOpenDatabase, Path());
  sqlite3* handle = nullptr;
  const int code = sqlite3_open_v2(
      Path().c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
  handle_.reset(handle);
  if (code != SQLITE_OK) throw EngineFailure(*this, code);
  sqlite3_busy_timeout(handle, kBusyMilliseconds);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_set_authorizer(handle, &Database::Authorize, this);
  velmar::jet::RegisterFunctions(handle);
  const Concerning concerning(*this, "main");
  Configure("main");
}

Database::~Database() = default;

void Database::Run(const std::string& sql) {
  const EngineAccess access(*this);
  Statement statement(*this, sql);
  while (statement.Step()) {
  }
}

std::int64_t Database::Number(const std::string& sql) {
  const EngineAccess access(*this);
  Statement statement(*this, sql);
  return statement.Step() ? statement.Long(0) : 0;
}

void Database::Attach(const std::string& path, const std::string& alias) {
  velmar::OperationObserver::Announce(velmar::Operation::kAttachDatabase, path);
  RequireDatabaseFile(path);
  files_.insert_or_assign(alias, path);
  const Concerning concerning(*this, alias);
  try {
    Statement attach(*this, "ATTACH DATABASE ?1 AS ?2");
    attach.Bind(1, path);
    attach.Bind(2, alias);
    attach.Step();
  } catch (...) {
    files_.erase(alias);
    throw;
  }
  try {
    Configure(alias);
  } catch (...) {
    TryDetach(alias);
    throw;
  }
}

bool Database::TryDetach(const std::string& alias) noexcept {
  try {
    Run("DETACH DATABASE " + velmar::jet::QuoteIdentifier(alias));
    files_.erase(alias);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

std::string Database::FileOf(std::string_view alias) const {
  const auto found = files_.find(alias);
  return found == files_.end() ? std::string() : found->second;
}

bool Database::InTransaction() const noexcept {
  return sqlite3_get_autocommit(handle_.get()) == 0;
}

std::int64_t Database::OwnChanges() const noexcept {
  return sqlite3_total_changes64(handle_.get()) + directChanges_;
}

std::int64_t Database::OthersChanges() {
  return Number("PRAGMA main.data_version");
}

/// The first read of the file: it finds a foreign or truncated one and brings back a journal that was left.
void Database::Configure(const std::string& alias) {
  const std::string prefix = "PRAGMA " + velmar::jet::QuoteIdentifier(alias) + ".";
  Number("SELECT count(*) FROM " + velmar::jet::QuoteIdentifier(alias) + ".sqlite_master");
  const bool scratch = Number(prefix + "application_id") == kScratchMark;
  if (alias == "main") scratch_ = scratch;
  // In KiB. A host's cache also bounds what a sort holds in memory; rows go through a scratch file in bulk,
  // and few pages, which stay in the processor's own cache, are faster than many.
  Run(prefix + (alias != "main" ? "cache_size = -8192"
                : scratch       ? "cache_size = -4096"
                                : "cache_size = -32768"));
  // Files are not mapped into memory: another program that cuts one short would end this one.
  Run(prefix + "mmap_size = 0");
  // What is deleted in a scratch file need not be overwritten: the whole file is soon deleted too.
  if (scratch) Run(prefix + "secure_delete = OFF");
  // The engine allows no change of these inside a transaction; full durability is what it starts with.
  if (InTransaction()) return;
  Run(prefix + (scratch ? "synchronous = OFF" : "synchronous = FULL"));
  if (scratch) PlaceScratchJournal(alias);
}

void Database::PlaceJournal() {
  if (scratch_ && !InTransaction()) PlaceScratchJournal("main");
}

void Database::PlaceScratchJournal(const std::string& alias) {
  const std::string prefix = "PRAGMA " + velmar::jet::QuoteIdentifier(alias) + ".";
  const bool small =
      Number(prefix + "page_count") * Number(prefix + "page_size") <= kMostBytesWithJournalInMemory;
  // On the disk it bounds the memory of a statement that changes every row of a great table.
  Run(prefix + (small ? "journal_mode = MEMORY" : "journal_mode = DELETE"));
}

int Database::Authorize(void* self, int action, const char* first, const char* second, const char* alias,
                        const char* /*trigger*/) {
  Database& database = *static_cast<Database*>(self);
  const auto refuse = [&](const char* name) {
    database.refused_ = name;
    return SQLITE_DENY;
  };
  for (const char* name : {first, second}) {
    if (name != nullptr && database.systemAccess_ == 0 && IsSystemTable(name)) return refuse(name);
  }
  const bool reads = action == SQLITE_READ && database.engineAccess_ == 0 && first != nullptr;
  return reads && database.IsEngineTable(first, alias) ? refuse(first) : SQLITE_OK;
}

bool Database::IsEngineTable(const char* name, const char* alias) const {
  if (sqlite3_strnicmp(name, "sqlite_", 7) == 0) return true;
  // A table of the file may bear the name of one that the engine makes up.
  return IsEngineModule(name) &&
         sqlite3_table_column_metadata(handle_.get(), alias, name, nullptr, nullptr, nullptr, nullptr,
                                       nullptr, nullptr) != SQLITE_OK;
}

}  // namespace ADODB
