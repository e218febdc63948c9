#include "platform/ado/DatabaseFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "platform/ado/Database.h"
#include "platform/ado/DatabasePassword.h"
#include "platform/error/OperationObserver.h"
#include "platform/error/SystemFailure.h"

namespace ADODB {

DatabaseFile::DatabaseFile(std::string path) : path_(std::move(path)) {
  velmar::OperationObserver::Announce(velmar::Operation::kCreateDatabase, path_);
  const int descriptor = ::open(path_.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666);
  if (descriptor < 0)
    throw velmar::SystemFailure(errno, "No se puede crear la base de datos " + path_, "ADOX.Catalog");
  ::close(descriptor);
  RemoveCompanions();
}

DatabaseFile::~DatabaseFile() {
  if (keep_) return;
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
  RemoveCompanions();
}

void DatabaseFile::Initialise(bool scratch, const std::string& password) {
  Database database(path_, Database::New{});
  if (scratch) {
    database.Run("PRAGMA synchronous = OFF");
    // Rows go through such a file in bulk: fewer and larger pages are written faster.
    database.Run("PRAGMA page_size = 65536");
  }
  database.Run("PRAGMA application_id = " + std::to_string(scratch ? kScratchMark : kHostMark));
  if (!password.empty()) StorePassword(database, password);
}

void DatabaseFile::RemoveCompanions() const noexcept {
  for (const char* ending : {"-journal", "-wal", "-shm"}) {
    std::error_code ignored;
    std::filesystem::remove(path_ + ending, ignored);
  }
}

}  // namespace ADODB
