#pragma once

#include <string>
#include <vector>

namespace velmar::jet {

/// One statement of the file: what is run, and what has to come of it.
struct StatementCase {
  std::string name;
  std::string jet;
  std::string sql;
  std::string names;
  std::string after;
  std::string error;
  std::vector<std::string> rows;
  bool hasRows = false;
  int line = 0;
};

/// statements.txt. Its own head explains the format.
class StatementFile {
 public:
  explicit StatementFile(const std::string& path);

  const std::vector<std::string>& Setup() const { return setup_; }
  const std::vector<std::string>& ExternalSetup() const { return externalSetup_; }
  const std::vector<StatementCase>& Cases() const { return cases_; }

 private:
  void Take(const std::string& key, const std::string& value, int line);

  std::vector<std::string> setup_;
  std::vector<std::string> externalSetup_;
  std::vector<StatementCase> cases_;
};

}  // namespace velmar::jet
