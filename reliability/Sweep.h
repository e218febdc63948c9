#pragma once

#include <string>
#include <vector>

#include "reliability/Scenario.h"

namespace velmar::reliability {

/// What a sweep has found.
struct Findings {
  long cases = 0;
  long succeeded = 0;  ///< told success, rightly
  long told = 0;       ///< told a failure
  std::vector<std::string> complaints;
  std::vector<std::string> skipped;  ///< cases that the system does not allow
};

Findings operator+(Findings one, const Findings& other);

/// Runs the export again and again: each time one of the operations fails, alone or with all that follow it.
/// This and what follows run their cases side by side, in as many processes as there are processors.
Findings SweepFaults(const Scenario& scenario, const Office& original, Faults::Kind kind,
                     const std::vector<long>& operations);

/// Kills the exporting process at each of the operations.
Findings SweepKills(const Scenario& scenario, const Office& original, const std::vector<long>& operations);
/// The numbers of all operations of the scenario.
std::vector<long> AllOf(const Scenario& scenario);
/// So many of the numbers, evenly spread, or all if they are fewer.
std::vector<long> Spread(const std::vector<long>& numbers, std::size_t points);

/// Kills it after one, two, … of so many equal parts of the time that a run takes, measured anew for each.
Findings SweepKillsByTime(const Scenario& scenario, const Office& original, long points);

}  // namespace velmar::reliability
