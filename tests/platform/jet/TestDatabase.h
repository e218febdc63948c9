#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/Translation.h"

struct sqlite3;

namespace velmar::jet {

/// Translates with an alias for each other database that the text names: "ext1", "ext2" and so on, in order
/// of appearance.
Translation Translated(std::string_view jetText, const NameMap* names = nullptr);

/// What a statement gave.
struct Outcome {
  std::vector<std::string> names;
  std::vector<std::string> rows;  ///< one line a row: 'text' | 12 | NULL
};

/// A database in a folder of its own that runs Jet texts through their translation. All external databases of
/// a text stand for one second file, which is there between Begin and Rollback.
class TestDatabase {
 public:
  TestDatabase();
  ~TestDatabase();
  TestDatabase(const TestDatabase&) = delete;
  TestDatabase& operator=(const TestDatabase&) = delete;

  /// Translates and runs. A SELECT gives its rows; SELECT INTO and INSERT run as their caller composes them
  /// and give the rows of the target. Throws RuntimeError for what translation or engine refuses.
  Outcome Run(std::string_view jetText, const NameMap* names = nullptr);
  Outcome Run(const Translation& translation);
  /// Runs in the second file.
  void RunExternal(std::string_view jetText);
  /// Runs SQLite text as it is.
  Outcome Sql(const std::string& text);

  /// What is run from here on can be undone.
  void Begin();
  void Rollback();

 private:
  void Attach(const std::string& alias);

  std::filesystem::path folder_;
  sqlite3* database_ = nullptr;
};

}  // namespace velmar::jet
