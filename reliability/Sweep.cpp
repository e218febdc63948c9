#include "reliability/Sweep.h"

#include <unistd.h>

#include <chrono>
#include <numeric>
#include <thread>

#include "reliability/Child.h"

namespace velmar::reliability {
namespace {

constexpr unsigned kLongestRun = 600;  // seconds

void Note(Findings& findings, const std::string& where, const std::vector<std::string>& complaints) {
  for (const std::string& complaint : complaints) findings.complaints.push_back(where + ": " + complaint);
}

void AfterKill(const Scenario& scenario, const Office& office, const std::string& where, bool ended,
               Findings& findings) {
  ++findings.cases;
  if (ended) ++findings.succeeded;
  Note(findings, where, scenario.ComplaintsOfData(office));
  Note(findings, where, scenario.ComplaintsOfNextRun(office));
}

}  // namespace

Findings& Findings::operator+=(const Findings& other) {
  cases += other.cases;
  succeeded += other.succeeded;
  told += other.told;
  complaints.insert(complaints.end(), other.complaints.begin(), other.complaints.end());
  skipped.insert(skipped.end(), other.skipped.begin(), other.skipped.end());
  return *this;
}

std::vector<long> AllOf(const Scenario& scenario) {
  std::vector<long> numbers(static_cast<std::size_t>(scenario.Operations()));
  std::iota(numbers.begin(), numbers.end(), 0L);
  return numbers;
}

std::vector<long> Spread(const std::vector<long>& numbers, std::size_t points) {
  if (numbers.size() <= points) return numbers;
  std::vector<long> some;
  for (std::size_t point = 0; point < points; ++point)
    some.push_back(numbers[point * numbers.size() / points]);
  return some;
}

Findings SweepFaults(const Scenario& scenario, const Office& original, Faults::Kind kind,
                     const std::vector<long>& operations) {
  Findings findings;
  Office office(original);
  for (const long k : operations) {
    alarm(kLongestRun);
    scenario.Prepare(office);
    Faults faults(Scenario::Target(office), kind, k);
    Seen seen;
    {
      const OperationObserver::Scope scope(faults);
      seen = scenario.Run(office);
    }
    ++findings.cases;
    (seen.success ? findings.succeeded : findings.told) += 1;
    const std::string where = "operation " + std::to_string(k) +
                              (kind == Faults::Kind::kOnce ? "" : " and all behind it") + " (" +
                              faults.Failed() + ") -> " + seen.Text();
    Note(findings, where, scenario.Complaints(office, seen, faults));
    Note(findings, where, scenario.ComplaintsOfNextRun(office));
    alarm(0);
  }
  return findings;
}

Findings SweepKills(const Scenario& scenario, const Office& original, const std::vector<long>& operations) {
  Findings findings;
  Office office(original);
  for (const long k : operations) {
    scenario.Prepare(office);
    const bool ended = InChild([&] {
                         Faults faults(Scenario::Target(office), Faults::Kind::kKill, k);
                         const OperationObserver::Scope scope(faults);
                         scenario.Run(office);
                         return std::vector<std::string>();
                       }).empty();
    AfterKill(scenario, office, "killed at operation " + std::to_string(k), ended, findings);
  }
  return findings;
}

Findings SweepKillsByTime(const Scenario& scenario, const Office& original, long points) {
  Findings findings;
  Office office(original);
  for (long point = 0; point < points; ++point) {
    const auto microseconds = (point + 1) * scenario.Microseconds() / points;
    scenario.Prepare(office);
    Child child([&](Child&) {
      scenario.Run(office);
      return std::vector<std::string>();
    });
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
    child.Kill();
    const bool ended = child.Finish().empty();
    AfterKill(scenario, office, "killed after " + std::to_string(microseconds) + " µs", ended, findings);
  }
  return findings;
}

}  // namespace velmar::reliability
