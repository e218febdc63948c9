#include "platform/ado/Attachments.h"

#include "platform/ado/DatabasePassword.h"
#include "platform/ado/EngineFailure.h"
#include "platform/ado/TableNames.h"
#include "platform/files/Paths.h"

namespace ADODB {

std::string Attachments::AliasFor(const std::string& path, const std::string& password) {
  const auto found = velmar::files::Resolve(path);
  if (!found) throw DatabaseNotFound(path);
  const FileIdentity file = IdentityOf(*found);
  if (file == database_->Identity()) {
    RequirePassword(*database_, "main", file, password);
    return "main";
  }
  for (const Attachment& attachment : attachments_) {
    if (attachment.file == file) {
      RequirePassword(*database_, attachment.alias, file, password);
      return attachment.alias;
    }
  }
  std::string alias = "db" + std::to_string(++lastNumber_);
  database_->Attach(*found, alias);
  try {
    RequirePassword(*database_, alias, file, password);
    attachments_.push_back({alias, file});
  } catch (...) {
    database_->TryDetach(alias);
    throw;
  }
  return alias;
}

void Attachments::Release() noexcept {
  std::erase_if(attachments_,
                [this](const Attachment& attachment) { return database_->TryDetach(attachment.alias); });
}

void Attachments::AddNames(velmar::jet::NameMap& names) const {
  ADODB::AddNames(*database_, "main", names);
  for (const Attachment& attachment : attachments_) ADODB::AddNames(*database_, attachment.alias, names);
}

}  // namespace ADODB
