#pragma once

#include <string>
#include <vector>

#include "platform/ado/Database.h"

namespace velmar::jet {
class NameMap;
}

namespace ADODB {

/// The other database files that the statements of a connection name. A file has one alias, however its path
/// is spelt; the connection's own file is "main". Files stay attached only as long as something uses them.
class Attachments {
 public:
  explicit Attachments(Database& database) noexcept : database_(&database) {}

  /// The alias of the file, which is attached if it is not yet. kDatabaseNotFound, kWrongPassword, and what
  /// Database::Attach raises; then nothing is attached.
  std::string AliasFor(const std::string& path, const std::string& password);

  /// Detaches what no statement and no transaction uses any more.
  void Release() noexcept;

  void AddNames(velmar::jet::NameMap& names) const;

  /// Releases at the end of a statement.
  class Scope {
   public:
    explicit Scope(Attachments& attachments) noexcept : attachments_(&attachments) {}
    ~Scope() { attachments_->Release(); }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    Attachments* attachments_;
  };

 private:
  struct Attachment {
    std::string alias;
    FileIdentity file;
  };

  Database* database_;
  std::vector<Attachment> attachments_;
  unsigned lastNumber_ = 0;
};

}  // namespace ADODB
