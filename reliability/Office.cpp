#include "reliability/Office.h"

#include <sqlite3.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>

#include "platform/jet/Engine.h"
#include "sample/DatabaseGenerator.h"
#include "sample/SampleFiles.h"

namespace velmar::reliability {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDatabases[] = {sample::kMainFile.data(), sample::kReportsFile.data()};

struct Close {
  void operator()(sqlite3* handle) const { sqlite3_close(handle); }
};

class Reader {
 public:
  explicit Reader(const std::string& path) {
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    handle_.reset(handle);
    if (code != SQLITE_OK) throw std::runtime_error("cannot open " + path);
    jet::RegisterFunctions(handle);
  }

  std::vector<std::vector<std::string>> Rows(const std::string& sql) const {
    std::vector<std::vector<std::string>> rows;
    const auto add = [](void* target, int count, char** values, char**) {
      auto& row = static_cast<std::vector<std::vector<std::string>>*>(target)->emplace_back();
      for (int i = 0; i < count; ++i) row.emplace_back(values[i] == nullptr ? "\x01" : values[i]);
      return 0;
    };
    char* message = nullptr;
    if (sqlite3_exec(handle_.get(), sql.c_str(), add, &rows, &message) != SQLITE_OK) {
      const std::string text = message == nullptr ? "" : message;
      sqlite3_free(message);
      throw std::runtime_error(sql + ": " + text);
    }
    return rows;
  }

 private:
  std::unique_ptr<sqlite3, Close> handle_;
};

std::size_t DigestOfFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes(fs::file_size(path), '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return std::hash<std::string>()(bytes);
}

}  // namespace

std::string MakeFolder(const std::string& parent) {
  const std::string memory = "/dev/shm";
  std::error_code ignored;
  const std::string place = !parent.empty()                     ? parent
                            : fs::is_directory(memory, ignored) ? memory
                                                                : fs::temp_directory_path().string();
  std::string folder = place + "/velmar-fiable-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no folder in " + place);
  return folder;
}

Office::Office(long collaborators) : folder_(MakeFolder()) {
  sample::GeneratorOptions options;
  options.folder = folder_;
  options.collaborators = collaborators;
  sample::DatabaseGenerator(options).Run();
}

Office::Office(const Office& original, const std::string& parent) : folder_(MakeFolder(parent)) {
  Reset(original);
}

Office::~Office() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

void Office::Reset(const Office& original) {
  for (const auto& entry : fs::directory_iterator(folder_)) fs::remove_all(entry.path());
  for (const char* name : kDatabases) fs::copy_file(original.Path(name), Path(name));
}

const Office::State& Office::StateOf(const std::string& database) const {
  // What most runs leave is byte by byte what another one has left, and a great database takes long to read.
  static std::map<std::string, std::pair<std::size_t, State>> last;
  auto& [content, state] = last[database];
  const bool changes = fs::exists(Path(database + "-journal"));
  const std::size_t now = DigestOfFile(Path(database));
  if (now == content && !changes) return state;
  content = 0;
  const Reader reader(Path(database));
  state = {reader.Rows("PRAGMA integrity_check").at(0).at(0), {}};
  for (const auto& table :
       reader.Rows("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'")) {
    std::size_t digest = 0;
    for (const auto& row : reader.Rows("SELECT * FROM \"" + table[0] + '"')) {
      for (const std::string& value : row) digest = digest * 31 + std::hash<std::string>()(value);
      digest = digest * 31 + 1;
    }
    state.rows[table[0]] = digest;
  }
  content = changes ? DigestOfFile(Path(database)) : now;
  return state;
}

std::vector<std::string> Office::Others() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_)) {
    const std::string name = entry.path().filename().string();
    if (std::find(std::begin(kDatabases), std::end(kDatabases), name) == std::end(kDatabases))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace velmar::reliability
