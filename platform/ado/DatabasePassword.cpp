#include "platform/ado/DatabasePassword.h"

#include <sodium.h>

#include <array>
#include <mutex>
#include <set>
#include <string_view>

#include "platform/ado/Savepoint.h"
#include "platform/ado/Statement.h"
#include "platform/ado/TableNames.h"
#include "platform/error/ErrorNumber.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;
using velmar::jet::QuoteIdentifier;

void RequireSodium() {
  if (sodium_init() < 0) {
    throw RuntimeError(velmar::kInternalError, "No se ha podido iniciar la biblioteca de cifrado.", "ADODB");
  }
}

/// What has been verified, as keyed digests of file, stored hash and password: no password stays in memory.
class VerifiedPasswords {
 public:
  VerifiedPasswords() { crypto_generichash_keygen(key_.data()); }

  bool Holds(const std::string& digest) {
    const std::lock_guard lock(mutex_);
    return digests_.contains(digest);
  }
  void Add(const std::string& digest) {
    const std::lock_guard lock(mutex_);
    digests_.insert(digest);
  }
  std::string Digest(const FileIdentity& file, std::string_view hash, std::string_view password) const {
    std::string text = std::to_string(file.device) + ' ' + std::to_string(file.number) + ' ';
    text.append(hash).push_back('\0');
    text.append(password);
    std::array<unsigned char, crypto_generichash_BYTES> digest{};
    crypto_generichash(digest.data(), digest.size(), reinterpret_cast<const unsigned char*>(text.data()),
                       text.size(), key_.data(), key_.size());
    sodium_memzero(text.data(), text.size());
    return {reinterpret_cast<const char*>(digest.data()), digest.size()};
  }

 private:
  std::mutex mutex_;
  std::array<unsigned char, crypto_generichash_KEYBYTES> key_{};
  std::set<std::string> digests_;
};

VerifiedPasswords& Verified() {
  static VerifiedPasswords verified;
  return verified;
}

/// Empty if the file has no password.
std::string StoredHash(Database& database, const std::string& alias) {
  const Database::SystemAccess access(database);
  const Database::Concerning concerning(database, alias);
  const std::string schema = QuoteIdentifier(alias);
  const std::string table = QuoteIdentifier(kSystemTable);
  if (database.Number("SELECT count(*) FROM " + schema + ".sqlite_master WHERE type = 'table' AND name = '" +
                      std::string(kSystemTable) + "'") == 0) {
    return {};
  }
  Statement read(database, "SELECT \"Clave\" FROM " + schema + "." + table);
  return read.Step() ? std::string(read.Text(0)) : std::string();
}

std::string HashOf(const std::string& password) {
  std::array<char, crypto_pwhash_STRBYTES> hash{};
  if (crypto_pwhash_str(hash.data(), password.data(), password.size(), crypto_pwhash_OPSLIMIT_INTERACTIVE,
                        crypto_pwhash_MEMLIMIT_INTERACTIVE) != 0) {
    throw RuntimeError(velmar::kInternalError, "No hay memoria suficiente para cifrar la contraseña.",
                       "ADODB");
  }
  return hash.data();
}

}  // namespace

void RequirePassword(Database& database, const std::string& alias, const FileIdentity& file,
                     const std::string& password) {
  const std::string hash = StoredHash(database, alias);
  if (hash.empty()) return;
  RequireSodium();
  const std::string digest = Verified().Digest(file, hash, password);
  if (Verified().Holds(digest)) return;
  if (crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) != 0) {
    throw RuntimeError(velmar::kWrongPassword,
                       (password.empty() ? "Falta la contraseña de la base de datos "
                                         : "La contraseña no es la de la base de datos ") +
                           database.FileOf(alias) + ".",
                       "ADODB.Connection");
  }
  Verified().Add(digest);
}

void StorePassword(Database& database, const std::string& password) {
  if (password.find(']') != std::string::npos || password.find('\0') != std::string::npos) {
    throw RuntimeError(velmar::kInvalidPropertyValue,
                       "La contraseña de la base de datos " + database.Path() +
                           " no puede contener un corchete de cierre «]» ni el carácter nulo: en las "
                           "sentencias va entre corchetes. Elija otra.",
                       "ADODB.Connection");
  }
  RequireSodium();
  const std::string hash = password.empty() ? std::string() : HashOf(password);
  const std::string table = "\"main\"." + QuoteIdentifier(kSystemTable);
  const Database::SystemAccess access(database);
  Savepoint savepoint(database);
  database.Run("CREATE TABLE IF NOT EXISTS " + table + "(\"Clave\" TEXT NOT NULL)");
  database.Run("DELETE FROM " + table);
  if (!hash.empty()) {
    Statement insert(database, "INSERT INTO " + table + " VALUES (?1)");
    insert.Bind(1, hash);
    insert.Step();
  }
  savepoint.Release();
}

}  // namespace ADODB
