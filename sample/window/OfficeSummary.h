#pragma once

#include <string>
#include <vector>

namespace velmar::sample {

/// How much of what an office's databases hold, for people to read.
struct OfficeSummary {
  struct Count {
    std::string label;  ///< Spanish
    long long rows;
  };

  /// Live rows alone, and the templates of this user. Opens Gestion.mdb in the folder and closes it again.
  /// Failures are those of opening and reading it.
  static OfficeSummary Read(const std::string& folder, long user);

  std::vector<Count> counts;
};

}  // namespace velmar::sample
