#include "reliability/Scenario.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <stdexcept>

#include "sample/WorkbookReader.h"

namespace velmar::reliability {
namespace {

constexpr const char* kMain = "Gestion.mdb";
constexpr const char* kReports = "Informes.mdb";
constexpr const char* kOldTarget = "old workbook";

std::string Content(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

std::string Joined(const std::vector<std::string>& names) {
  std::string all;
  for (const std::string& name : names) all += " " + name;
  return all;
}

}  // namespace

Scenario::Scenario(const Office& original, Selection selection) : selection_(selection), original_(original) {
  Office office(original);
  Prepare(office);
  mainBefore_ = office.Rows(kMain);
  reports_ = office.Rows(kReports);
  Faults counter(Target(office));
  for (const bool counts : {true, false}) {
    Prepare(office);
    std::optional<OperationObserver::Scope> scope;
    if (counts) scope.emplace(counter);
    const auto start = std::chrono::steady_clock::now();
    const Seen seen = Run(office);
    if (!seen.success) throw std::runtime_error("the faultless export fails: " + seen.Text());
    // The second time, which is quicker.
    microseconds_ = static_cast<long>(
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start)
            .count());
  }
  operations_ = counter.Count();
  milestones_ = counter.Milestones();
  mainAfter_ = office.Rows(kMain);
  workbook_ = Content(Target(office));
  cells_ = sample::ReadWorkbook(Target(office));
  sheets_ = cells_.size();
  for (const auto& sheet : cells_) rows_ += static_cast<long>(sheet.size()) - 1;
}

void Scenario::Prepare(Office& office) const {
  office.Reset(original_);
  PutOldTarget(office);
}

void Scenario::PutOldTarget(const Office& office) {
  std::ofstream(Target(office), std::ios::binary) << kOldTarget;
}

bool Scenario::IsComplete(const std::string& workbook) const {
  return Content(workbook) == workbook_ || sample::ReadWorkbook(workbook) == cells_;
}

bool Scenario::IsOldTarget(const Office& office) const {
  return Content(Target(office)) == kOldTarget;
}

void Scenario::CheckTables(const Office& office, const char* database, const Tables& before,
                           const Tables& after, std::vector<std::string>& complaints) const {
  if (office.Integrity(database) != "ok") complaints.push_back(std::string(database) + " is damaged");
  const Tables now = office.Rows(database);
  Tables all = before;
  all.insert(after.begin(), after.end());
  all.insert(now.begin(), now.end());
  for (const auto& entry : all) {
    const std::string& table = entry.first;
    const auto same = [&](const Tables& state) {
      const auto there = now.find(table);
      const auto expected = state.find(table);
      if (there == now.end() || expected == state.end())
        return (there == now.end()) == (expected == state.end());
      return there->second == expected->second;
    };
    // The declaration's table holds what a run has worked out; the next run empties it.
    if (table == "Modelo182Hacienda" || same(before) || same(after)) continue;
    complaints.push_back("table " + table + " of " + database + " has changed");
  }
}

std::vector<std::string> Scenario::ComplaintsOfData(const Office& office) const {
  std::vector<std::string> complaints;
  try {
    CheckTables(office, kMain, mainBefore_, mainAfter_, complaints);
    CheckTables(office, kReports, reports_, reports_, complaints);
  } catch (const std::exception& failure) {
    complaints.push_back(std::string("a database cannot be read: ") + failure.what());
  }
  return complaints;
}

std::vector<std::string> Scenario::Complaints(const Office& office, const Seen& seen,
                                              const Faults& faults) const {
  std::vector<std::string> complaints = ComplaintsOfData(office);
  const std::string target = Target(office);
  const bool exists = std::filesystem::exists(target);
  if (seen.success) {
    if (!exists || !IsComplete(target)) complaints.push_back("success is told of a wrong workbook");
  } else if (seen.failures.empty()) {
    complaints.push_back("neither success nor failure is told");
  }
  if (!faults.TargetDeleted() && !IsOldTarget(office)) complaints.push_back("the old target has changed");
  if (!seen.success && faults.TargetDeleted() && exists) {
    // What could be written, and the user knows that it is not all; or all, and only the end failed.
    try {
      if (!IsComplete(target) && !seen.Told("está incompleto"))
        complaints.push_back("a half workbook is left without a word");
    } catch (const std::exception&) {
      complaints.push_back("an unreadable workbook is left");
    }
  }
  return complaints;
}

std::vector<std::string> Scenario::ComplaintsOfNextRun(const Office& office) const {
  std::vector<std::string> complaints;
  const Seen seen = Run(office);
  if (!seen.success) complaints.push_back("the next run fails: " + seen.Text());
  if (seen.success && !IsComplete(Target(office))) complaints.push_back("the next run's workbook is wrong");
  const std::vector<std::string> others = office.Others();
  if (others != std::vector<std::string>{"Salida.xls"})
    complaints.push_back("left behind the next run:" + Joined(others));
  for (const std::string& complaint : ComplaintsOfData(office)) complaints.push_back(complaint);
  if (office.Rows(kMain) != mainAfter_) complaints.push_back("the next run leaves other rows");
  return complaints;
}

}  // namespace velmar::reliability
