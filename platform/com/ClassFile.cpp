#include "platform/com/ClassFile.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "platform/error/ErrObject.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Collation.h"
#include "platform/text/Search.h"

namespace velmar::com {
namespace {

[[noreturn]] void RaiseUnreadable(const std::string& path, const std::string& reason) {
  throw RuntimeError(
      kDeviceIoError,
      "No se puede leer el registro de clases \"" + path + "\": " + reason + ". Bórrelo y registre de nuevo.",
      "CreateObject");
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
  std::vector<Entry> entries = Entries();
  std::erase_if(entries, [&](const Entry& other) {
    return other.classId == entry.classId || text::EqualText(other.progId, entry.progId);
  });
  entries.push_back(entry);
  Write(entries);
}

void ClassFile::Withdraw(const Guid& classId) const {
  std::vector<Entry> entries = Entries();
  if (std::erase_if(entries, [&](const Entry& entry) { return entry.classId == classId; }) > 0)
    Write(entries);
}

void ClassFile::Write(const std::vector<Entry>& entries) const {
  namespace fs = std::filesystem;
  std::error_code error;
  fs::create_directories(fs::path(path_).parent_path(), error);
  const std::string fresh = path_ + ".nuevo";
  std::ofstream file(fresh, std::ios::trunc);
  for (const Entry& entry : entries) {
    file << entry.progId << '\t' << entry.classId.ToText() << '\t' << entry.server << '\n';
  }
  file.close();
  error.clear();
  if (file) fs::rename(fresh, path_, error);
  if (!file || error) {
    fs::remove(fresh, error);
    throw RuntimeError(
        kPermissionDenied,
        "No se puede escribir el registro de clases \"" + path_ + "\". Compruebe el permiso de su carpeta.",
        "DllRegisterServer");
  }
}

}  // namespace velmar::com
