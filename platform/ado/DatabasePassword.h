#pragma once

#include <string>

#include "platform/ado/Database.h"

namespace ADODB {

// The password of a database file guards its opening, not the bytes on the disk. The file keeps a salted slow
// hash (Argon2id, as libsodium's crypto_pwhash_str writes it) in its system table.

/// Refuses with kWrongPassword unless the file behind the alias has no password or this one. What has once
/// been found right is remembered for the life of the process, by file and hash, so that repeated attachments
/// cost nothing.
void RequirePassword(Database& database, const std::string& alias, const FileIdentity& file,
                     const std::string& password);

/// Sets or changes the password of the main file; an empty one removes it. kInvalidPropertyValue for one with
/// "]", which no statement could give in its brackets.
void StorePassword(Database& database, const std::string& password);

}  // namespace ADODB
