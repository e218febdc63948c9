#pragma once

#include <chrono>
#include <ctime>
#include <map>
#include <string>

namespace velmar::bench {

/// What a step has measured, by name: seconds of its parts, "filas", "octetos" (of the file). "total" is the
/// whole.
using Measures = std::map<std::string, double>;

/// Seconds since the object was made or asked last: by the clock, and of the processor's work, which others
/// on the machine do not lengthen.
class StopWatch {
 public:
  /// Adds them to the measure of this name and to that with ".cpu" behind it.
  void Lap(Measures& measures, const std::string& name) {
    const auto now = std::chrono::steady_clock::now();
    const std::clock_t work = std::clock();
    measures[name] += std::chrono::duration<double>(now - last_).count();
    measures[name + ".cpu"] += static_cast<double>(work - lastWork_) / CLOCKS_PER_SEC;
    last_ = now;
    lastWork_ = work;
  }

 private:
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
  std::clock_t lastWork_ = std::clock();
};

// Each step works on the sample databases of a folder and runs in a process of its own.

/// One whole export, as a window would do it.
Measures RunExport(const std::string& folder, long lastCollaborator);
/// The floor: the statement by the engine alone into a file without journal and sync, and the bare encoding
/// and writing of the cells of the staged rows.
Measures RunFloor(const std::string& folder, long lastCollaborator);
/// The same statement, and its cells written by libxlsxwriter, in constant memory; empty where it is not
/// installed.
Measures RunXlsxWriter(const std::string& folder, long lastCollaborator);
/// The staged cells written by Python's xlwt, and a CSV file of them converted by LibreOffice, both to the
/// Excel 97 format and without the time of the statement; empty where the program is not installed.
Measures RunXlwt(const std::string& folder, long lastCollaborator);
Measures RunLibreOffice(const std::string& folder, long lastCollaborator);

}  // namespace velmar::bench
