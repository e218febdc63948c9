#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <string>

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "sample/DatabaseGenerator.h"
#include "sample/SampleFiles.h"

namespace velmar::sample {

/// A folder of its own below the test's temporary folder; gone with all that it holds at the end.
class TestFolder {
 public:
  TestFolder() : path_(testing::TempDir() + "velmar-sample-XXXXXX") {
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder " + path_);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  ~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& Path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + '/' + name; }

 private:
  std::string path_;
};

inline GeneratorOptions OptionsFor(const std::string& folder, long collaborators, std::uint64_t seed = 42) {
  GeneratorOptions options;
  options.folder = folder;
  options.collaborators = collaborators;
  options.seed = seed;
  options.date = *ParseDate("2025-11-22");
  return options;
}

/// The generator's two databases, open.
struct SampleDatabase {
  explicit SampleDatabase(long collaborators, std::uint64_t seed = 42) {
    DatabaseGenerator(OptionsFor(folder.Path(), collaborators, seed)).Run();
    main = OpenDatabase(folder / "Gestion.mdb");
    reports = OpenDatabase(folder / "Informes.mdb");
  }

  /// The first value of the first row.
  ADODB::Variant Value(const std::string& sql) const { return main->Execute(sql)->Fields(0).Value(); }
  long long Number(const std::string& sql) const { return Value(sql).AsLong(); }

  TestFolder folder;
  std::shared_ptr<ADODB::Connection> main;
  std::shared_ptr<ADODB::Connection> reports;
};

}  // namespace velmar::sample
