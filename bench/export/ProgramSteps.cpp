#include <sqlite3.h>
#include <sys/resource.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "export/BareEngine.h"
#include "export/BenchSelection.h"
#include "export/Steps.h"

namespace velmar::bench {
namespace {

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

std::string Quoted(const std::string& path) {
  return " '" + path + "'";
}

/// Runs a program that makes the file; no measures if it fails or is not there.
Measures RunProgram(const std::string& command, const std::string& file) {
  std::filesystem::remove(file);
  Measures measures;
  StopWatch whole;
  const int result = std::system((command + " >/dev/null 2>&1").c_str());
  whole.Lap(measures, "total");
  if (result != 0 || !std::filesystem::exists(file)) return {};
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  measures["total.cpu"] = Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
  measures["memoria"] = static_cast<double>(usage.ru_maxrss) * 1024;
  measures["octetos"] = static_cast<double>(std::filesystem::file_size(file));
  std::filesystem::remove(file);
  return measures;
}

void WriteCell(std::ofstream& csv, sqlite3_stmt* row, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
  if (text == nullptr) return;
  csv << '"';
  for (const char character : std::string_view(text)) {
    if (character == '"') csv << '"';
    csv << character;
  }
  csv << '"';
}

}  // namespace

Measures RunXlwt(const std::string& folder, long lastCollaborator) {
  BareEngine engine(folder);
  engine.Stage(ClausesOf(BenchSelection(lastCollaborator)));
  const std::string file = folder + "/xlwt.xls";
  return RunProgram(
      "/usr/bin/python3" + Quoted(VELMAR_XLWT_WRITER) + Quoted(engine.StagingFile()) + Quoted(file), file);
}

Measures RunLibreOffice(const std::string& folder, long lastCollaborator) {
  const std::string source = folder + "/oficina.csv";
  {
    BareEngine engine(folder);
    engine.Stage(ClausesOf(BenchSelection(lastCollaborator)));
    std::ofstream csv(source);
    engine.ForEachRow([&](sqlite3_stmt* row, const std::vector<std::string>& columns) {
      for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        if (column > 0) csv << ',';
        WriteCell(csv, row, column);
      }
      csv << '\n';
    });
  }
  const Measures measures =
      RunProgram("soffice -env:UserInstallation=file://" + folder +
                     "/oficina --headless --convert-to xls --outdir" + Quoted(folder) + Quoted(source),
                 folder + "/oficina.xls");
  std::filesystem::remove(source);
  return measures;
}

}  // namespace velmar::bench
