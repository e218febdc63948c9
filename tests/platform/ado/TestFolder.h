#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/Catalog.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace ADODB {

/// A folder of its own for one test, removed at the end.
class TestFolder {
 public:
  TestFolder() {
    static std::atomic<int> number = 0;
    path_ = std::filesystem::path(testing::TempDir()) /
            ("ado-" + std::to_string(::getpid()) + "-" + std::to_string(++number));
    std::filesystem::create_directories(path_);
  }
  ~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  std::string File(const std::string& name) const { return (path_ / name).string(); }

  std::string Text(const std::string& name, const std::string& more = {}) const {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + File(name) + ";" + more;
  }

  /// A new database file.
  std::string Create(const std::string& name, const std::string& more = {}) const {
    ADOX::Catalog().Create(Text(name, more));
    return File(name);
  }

  std::shared_ptr<Connection> Open(const std::string& name, const std::string& more = {}) const {
    auto connection = std::make_shared<Connection>();
    connection->Open(Text(name, more));
    return connection;
  }

  std::shared_ptr<Connection> OpenNew(const std::string& name, const std::string& more = {}) const {
    Create(name, more);
    return Open(name, more);
  }

  void Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(File(name), std::ios::binary) << bytes;
  }

  std::string Read(const std::string& name) const {
    std::ifstream file(File(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// Names of all files, sorted, with a blank between.
  std::string Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? "" : " ") + name;
    return text;
  }

 private:
  std::filesystem::path path_;
};

/// The rows that are left in a recordset, as "a|b / c|d", with "Null" for Null.
inline std::string RowsOf(Recordset& recordset) {
  std::string text;
  for (; !recordset.Eof(); recordset.MoveNext()) {
    if (!text.empty()) text += " / ";
    for (long column = 0; column < recordset.Fields().Count(); ++column) {
      const Variant value = recordset.Fields(column).Value();
      text += (column == 0 ? "" : "|") + (value.IsNull() ? std::string("Null") : value.AsText());
    }
  }
  return text;
}

inline std::string RowsOf(Connection& connection, std::string_view select) {
  return RowsOf(*connection.Execute(select));
}

/// The number of the failure that the action raises, 0 if none.
template <typename Action>
long FailureOf(Action&& action) {
  try {
    action();
  } catch (const velmar::RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace ADODB
