#include "platform/com/ClassFile.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/error/ErrObject.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Collation.h"
#include "platform/text/Search.h"

namespace velmar::com {
namespace {

constexpr const char* kSource = "DllRegisterServer";

[[noreturn]] void RaiseUnreadable(const std::string& path, const std::string& reason) {
  throw RuntimeError(
      kDeviceIoError,
      "No se puede leer el registro de clases \"" + path + "\": " + reason + ". Bórrelo y registre de nuevo.",
      "CreateObject");
}

void RequireWritable(const std::string& field) {
  if (field.find_first_of("\t\n") == std::string::npos) return;
  throw RuntimeError(kInvalidProcedureCall,
                     "No se puede registrar la clase: \"" + field +
                         "\" contiene un tabulador o un salto de línea. Ponga la biblioteca en otra carpeta.",
                     kSource);
}

}  // namespace

ClassFile::ClassFile(std::string path) : path_(std::move(path)) {}

ClassFile ClassFile::OfUser() {
  const char* data = std::getenv("XDG_DATA_HOME");
  const char* home = std::getenv("HOME");
  std::string folder = data != nullptr ? data : "";
  if (folder.empty()) folder = std::string(home != nullptr ? home : ".") + "/.local/share";
  return ClassFile(folder + "/velmar/clases.tsv");
}

std::vector<ClassFile::Entry> ClassFile::Entries() const {
  std::vector<Entry> entries;
  std::error_code ignored;
  if (!std::filesystem::exists(path_, ignored)) return entries;
  std::ifstream file(path_);
  if (!file.is_open()) RaiseUnreadable(path_, "no se puede abrir");
  for (std::string line; std::getline(file, line);) {
    const std::vector<std::string> fields = text::Split(line, "\t");
    ErrObject Err;
    const bool good = fields.size() == 3 && Err.Try([&] {
      entries.push_back({fields[0], Guid::FromText(fields[1]), fields[2]});
    });
    if (!good)
      RaiseUnreadable(path_, "la línea " + std::to_string(entries.size() + 1) + " no describe una clase");
  }
  if (file.bad()) RaiseUnreadable(path_, "falla la lectura");
  return entries;
}

std::optional<ClassFile::Entry> ClassFile::Find(std::string_view progId) const {
  for (Entry& entry : Entries()) {
    if (text::EqualText(entry.progId, progId)) return std::move(entry);
  }
  return std::nullopt;
}

std::optional<ClassFile::Entry> ClassFile::Find(const Guid& classId) const {
  for (Entry& entry : Entries()) {
    if (entry.classId == classId) return std::move(entry);
  }
  return std::nullopt;
}

void ClassFile::Publish(const Entry& entry) const {
  RequireWritable(entry.progId);
  RequireWritable(entry.server);
  const files::FileLock lock = Lock();
  std::vector<Entry> entries = Entries();
  std::erase_if(entries, [&](const Entry& other) {
    return other.classId == entry.classId || text::EqualText(other.progId, entry.progId);
  });
  entries.push_back(entry);
  Write(entries);
}

void ClassFile::Withdraw(const Guid& classId) const {
  if (!Find(classId)) return;
  const files::FileLock lock = Lock();
  std::vector<Entry> entries = Entries();
  std::erase_if(entries, [&](const Entry& entry) { return entry.classId == classId; });
  Write(entries);
}

/// Whoever reads, changes and writes the file does so alone. Makes the folder.
files::FileLock ClassFile::Lock() const {
  constexpr int kMostTries = 250;
  constexpr std::chrono::milliseconds kPause{20};
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), error);
  if (error) RaiseUnwritable("Compruebe el permiso de su carpeta");
  for (int tries = 0; tries < kMostTries; ++tries) {
    if (auto lock = files::FileLock::TryTake(path_ + ".lock")) return *std::move(lock);
    std::this_thread::sleep_for(kPause);
  }
  RaiseUnwritable("Otro programa lo está cambiando: espere a que termine y vuelva a intentarlo");
}

void ClassFile::RaiseUnwritable(const std::string& remedy) const {
  throw RuntimeError(kPermissionDenied,
                     "No se puede escribir el registro de clases \"" + path_ + "\". " + remedy + ".",
                     kSource);
}

void ClassFile::Write(const std::vector<Entry>& entries) const {
  namespace fs = std::filesystem;
  std::error_code error;
  // A name of its own, since a drive may know no locks.
  const std::string fresh = path_ + "." + std::to_string(::getpid()) + ".nuevo";
  std::ofstream file(fresh, std::ios::trunc);
  for (const Entry& entry : entries) {
    file << entry.progId << '\t' << entry.classId.ToText() << '\t' << entry.server << '\n';
  }
  file.close();
  if (file) fs::rename(fresh, path_, error);
  if (!file || error) {
    fs::remove(fresh, error);
    RaiseUnwritable("Compruebe el permiso de su carpeta");
  }
}

}  // namespace velmar::com
