#include "reliability/Sweep.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <numeric>
#include <thread>

#include "reliability/Child.h"

namespace velmar::reliability {
namespace {

constexpr unsigned kLongestRun = 600;  // seconds

// What a case reports of itself, each on a line. No letters: with one begins what is said of the process.
constexpr char kBegins = '>';
constexpr char kSucceeded = '+';
constexpr char kTold = '-';
constexpr char kWrong = '!';

/// How a process of its own tells what becomes of its cases.
class Reporter {
 public:
  explicit Reporter(Child& child) : child_(child) {}
  void Begin(long point) { child_.Report(kBegins + std::to_string(point)); }
  void Succeeded() { child_.Report({kSucceeded}); }
  void Told() { child_.Report({kTold}); }
  void Wrong(const std::string& where, const std::vector<std::string>& complaints) {
    for (const std::string& complaint : complaints) child_.Report(kWrong + where + ": " + complaint);
  }

 private:
  Child& child_;
};

using Case = std::function<void(Office& office, long point, Reporter& report)>;

void Read(const std::vector<std::string>& lines, Findings& findings) {
  std::string last = "the beginning";
  for (const std::string& line : lines) {
    switch (line.front()) {
      case kBegins:
        ++findings.cases;
        last = line.substr(1);
        break;
      case kSucceeded:
        ++findings.succeeded;
        break;
      case kTold:
        ++findings.told;
        break;
      case kWrong:
        findings.complaints.push_back(line.substr(1));
        break;
      default:  // its process has ended here, and with it the cases behind this one
        findings.complaints.push_back("point " + last + ": " + line);
    }
  }
}

/// Runs the case at each of the points, with as many processes side by side as there are processors. A run
/// that does not end is ended, with its process, by an alarm.
Findings AtEach(const std::vector<long>& points, const Office& original, const Case& work) {
  const std::size_t shares =
      std::min<std::size_t>(points.size(), std::max(1U, std::thread::hardware_concurrency()));
  std::vector<std::unique_ptr<Child>> children;
  // Made here: a process that is ended would leave its own.
  std::vector<std::unique_ptr<Office>> offices;
  for (std::size_t share = 0; share < shares; ++share) {
    Office& office = *offices.emplace_back(std::make_unique<Office>(original));
    children.push_back(std::make_unique<Child>([&, share](Child& self) {
      Reporter report(self);
      for (std::size_t i = share; i < points.size(); i += shares) {
        alarm(kLongestRun);
        report.Begin(points[i]);
        work(office, points[i], report);
      }
      return std::vector<std::string>();
    }));
  }
  Findings findings;
  for (const auto& child : children) Read(child->Finish(), findings);
  return findings;
}

void AfterKill(const Scenario& scenario, const Office& office, const std::string& where, bool ended,
               Reporter& report) {
  if (ended) report.Succeeded();
  report.Wrong(where, scenario.ComplaintsOfData(office));
  report.Wrong(where, scenario.ComplaintsOfNextRun(office));
}

}  // namespace

Findings operator+(Findings one, const Findings& other) {
  one.cases += other.cases;
  one.succeeded += other.succeeded;
  one.told += other.told;
  one.complaints.insert(one.complaints.end(), other.complaints.begin(), other.complaints.end());
  one.skipped.insert(one.skipped.end(), other.skipped.begin(), other.skipped.end());
  return one;
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
  return AtEach(operations, original, [&](Office& office, long k, Reporter& report) {
    scenario.Prepare(office);
    Faults faults(Scenario::Target(office), kind, k);
    Seen seen;
    {
      const OperationObserver::Scope scope(faults);
      seen = scenario.Run(office);
    }
    seen.success ? report.Succeeded() : report.Told();
    const std::string where = "operation " + std::to_string(k) +
                              (kind == Faults::Kind::kOnce ? "" : " and all behind it") + " (" +
                              faults.Failed() + ") -> " + seen.Text();
    report.Wrong(where, scenario.Complaints(office, seen, faults));
    report.Wrong(where, scenario.ComplaintsOfNextRun(office));
  });
}

Findings SweepKills(const Scenario& scenario, const Office& original, const std::vector<long>& operations) {
  return AtEach(operations, original, [&](Office& office, long k, Reporter& report) {
    scenario.Prepare(office);
    const bool ended = InChild([&] {
                         Faults faults(Scenario::Target(office), Faults::Kind::kKill, k);
                         const OperationObserver::Scope scope(faults);
                         scenario.Run(office);
                         return std::vector<std::string>();
                       }).empty();
    AfterKill(scenario, office, "killed at operation " + std::to_string(k), ended, report);
  });
}

Findings SweepKillsByTime(const Scenario& scenario, const Office& original, long points) {
  std::vector<long> parts(static_cast<std::size_t>(points));
  std::iota(parts.begin(), parts.end(), 1L);
  return AtEach(parts, original, [&](Office& office, long part, Reporter& report) {
    // How long a run takes depends on what goes on beside it, so each case has one run to the end first.
    scenario.Prepare(office);
    Child whole([&](Child& self) {
      scenario.Run(office);
      self.Pause();
      return std::vector<std::string>();
    });
    const auto start = std::chrono::steady_clock::now();
    whole.WaitForPause();
    const std::chrono::nanoseconds moment = (std::chrono::steady_clock::now() - start) * part / points;
    whole.Kill();
    whole.Finish();
    scenario.Prepare(office);
    Child child([&](Child&) {
      scenario.Run(office);
      return std::vector<std::string>();
    });
    std::this_thread::sleep_for(moment);
    child.Kill();
    const bool ended = child.Finish().empty();
    AfterKill(scenario, office,
              "killed after " + std::to_string(part) + " of " + std::to_string(points) + " parts of its time",
              ended, report);
  });
}

}  // namespace velmar::reliability
