#include <cstdlib>
#include <iostream>
#include <string>

#include "reliability/Cases.h"

namespace {

using namespace velmar::reliability;

long complaints = 0;

/// A row of the table: what, cases, ended well, failure told, wrong.
void Print(const std::string& title, const Findings& findings) {
  const bool sorted = findings.succeeded + findings.told > 0;
  std::cout << "| " << title << " | " << findings.cases << " | "
            << (sorted ? std::to_string(findings.succeeded) : "") << " | "
            << (sorted ? std::to_string(findings.told) : "") << " | " << findings.skipped.size() << " | "
            << findings.complaints.size() << " |" << std::endl;
  for (const std::string& skipped : findings.skipped) {
    std::cerr << title << ": not possible here: " << skipped << std::endl;
  }
  for (const std::string& complaint : findings.complaints) {
    ++complaints;
    std::cerr << title << ": " << complaint << std::endl;
  }
}

void Sweep(const std::string& name, const Office& original, const Scenario& scenario,
           const std::vector<long>& faults, const std::vector<long>& kills) {
  const std::string title = name + " (" + std::to_string(scenario.Operations()) + " operations, " +
                            std::to_string(scenario.Rows()) + " rows, " + std::to_string(scenario.Sheets()) +
                            " sheets): ";
  std::cerr << title << scenario.Milestones().size() << " other than single rows, "
            << scenario.Microseconds() / 1000 << " ms a run" << std::endl;
  Print(title + "one operation fails", SweepFaults(scenario, original, Faults::Kind::kOnce, faults));
  Print(title + "it and all behind it fail",
        SweepFaults(scenario, original, Faults::Kind::kFromThereOn, faults));
  Print(title + "killed at an operation", SweepKills(scenario, original, kills));
  Print(title + "killed at a moment", SweepKillsByTime(scenario, original, static_cast<long>(kills.size())));
}

}  // namespace

/// Arguments: collaborators of the great office, whose export takes three sheets (0: leave it out), at how
/// many of its operations faults are set, and at how many points it is killed.
int main(int count, char** words) {
  const auto number = [&](int at, long usual) {
    return count > at ? std::strtol(words[at], nullptr, 10) : usual;
  };
  const long great = number(1, 0);
  const long faults = number(2, 10);
  const long kills = number(3, 10);
  {
    const Office original(12);
    const Scenario receipts(original, Selection::kReceipts);
    Sweep("receipts", original, receipts, AllOf(receipts), Spread(AllOf(receipts), 100));
    const Scenario declaration(original, Selection::kDeclaration);
    Sweep("Modelo 182", original, declaration, AllOf(declaration), Spread(AllOf(declaration), 100));
    Print("full disks", LimitedFiles(receipts, original, true) + SmallDisks(receipts, original, true));
    Print("awkward places", ProtectedPlaces(receipts, original) + AwkwardPlaces(receipts, original));
    Print("two wizards", TwoWizards(receipts, original));
  }
  if (great > 0) {
    const Office original(great);
    const Scenario scenario(original, Selection::kReceipts);
    // One row after the other comes under the same operation: a few of them stand for all.
    const std::vector<long>& points = scenario.Milestones();
    Sweep("receipts of a great office", original, scenario, Spread(points, static_cast<std::size_t>(faults)),
          Spread(points, static_cast<std::size_t>(kills)));
  }
  return complaints == 0 ? 0 : 1;
}
