#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "export/BenchSelection.h"

struct sqlite3;
struct sqlite3_stmt;

namespace velmar::bench {

/// The engine without the platform above it: the host's database, and a staging file without journal and
/// sync.
class BareEngine {
 public:
  explicit BareEngine(const std::string& folder);
  ~BareEngine();
  BareEngine(const BareEngine&) = delete;
  BareEngine& operator=(const BareEngine&) = delete;

  const std::string& StagingFile() const noexcept { return stagingFile_; }
  /// CREATE TABLE … AS the statement, in the staging file.
  void Stage(const Clauses& clauses);
  /// The staged rows in their order, with the names of their columns.
  void ForEachRow(const std::function<void(sqlite3_stmt*, const std::vector<std::string>&)>& visit);

 private:
  void Run(const std::string& sql);

  std::string stagingFile_;
  std::unique_ptr<sqlite3, int (*)(sqlite3*)> database_;
};

}  // namespace velmar::bench
