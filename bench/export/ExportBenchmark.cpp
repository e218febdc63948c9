// Prints what an export takes beside its floor. Every measured step runs in a process of its own, the steps
// take turns, and the table shows medians.

#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "export/BenchSelection.h"
#include "export/Steps.h"
#include "platform/ado/Recordset.h"
#include "sample/DatabaseGenerator.h"
#include "sample/SampleFiles.h"

namespace velmar::bench {
namespace {

struct Step {
  const char* name;
  Measures (*run)(const std::string& folder, long lastCollaborator);
  long mostRows;       ///< more take it too long
  bool alwaysPresent;  ///< the others need something installed
};

constexpr long kManyRows = 10'000'000;
constexpr long kFewRows = 100'000;
constexpr std::array<Step, 5> kSteps{{{"exportar", RunExport, kManyRows, true},
                                      {"suelo", RunFloor, kManyRows, true},
                                      {"xlsxwriter", RunXlsxWriter, kManyRows, false},
                                      {"xlwt", RunXlwt, kFewRows, false},
                                      {"libreoffice", RunLibreOffice, kFewRows, false}}};

struct Options {
  std::string folder = (std::filesystem::temp_directory_path() / "velmar-banco").string();
  std::vector<long> rows{64000, 1000000};
  int rounds = 3;
};

double MiB(double bytes) {
  return bytes / (1024 * 1024);
}

/// The child's part: runs one step and prints its measures.
int RunStep(const std::string& name, const std::string& folder, long lastCollaborator) {
  for (const Step& step : kSteps) {
    if (name != step.name) continue;
    Measures measures = step.run(folder, lastCollaborator);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    measures.emplace("memoria", static_cast<double>(usage.ru_maxrss) * 1024);
    for (const auto& [key, value] : measures) std::cout << key << ' ' << value << '\n';
    return 0;
  }
  return 2;
}

Measures Ask(const std::string& program, const Step& step, const std::string& folder, long last) {
  const std::string command =
      "'" + program + "' --paso " + step.name + " '" + folder + "' " + std::to_string(last);
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  if (!pipe) throw std::runtime_error("no se puede ejecutar " + command);
  std::string text;
  std::array<char, 256> buffer{};
  while (std::fgets(buffer.data(), buffer.size(), pipe.get()) != nullptr) text += buffer.data();
  Measures measures;
  std::istringstream lines(text);
  std::string key;
  for (double value = 0; lines >> key >> value;) measures[key] = value;
  if (measures.find("total") == measures.end() && step.alwaysPresent)
    throw std::runtime_error("falla " + command);
  return measures;
}

/// Makes the sample databases unless they are there.
void MakeData(const Options& options, long rows) {
  if (std::filesystem::exists(sample::PathIn(options.folder, sample::kMainFile))) return;
  std::filesystem::create_directories(options.folder);
  std::cerr << "Se crean los datos de prueba en " << options.folder << "…\n";
  sample::GeneratorOptions generator;
  generator.folder = options.folder;
  generator.collaborators = std::max(2000L, rows / 3);
  generator.date = *sample::ParseDate("2026-06-30");
  sample::DatabaseGenerator(generator).Run();
}

/// The least last collaborator that gives so many rows. The folder may hold a smaller set of data than is
/// needed, made for fewer rows.
long LastCollaborator(const Options& options, long rows) {
  const auto main = sample::OpenDatabase(sample::PathIn(options.folder, sample::kMainFile));
  const auto number = [&](const std::string& sql) {
    return static_cast<long>(main->Execute(sql)->Fields(0).Value().AsLong());
  };
  long low = 1;
  long high = number("SELECT Max(IDColaborador) FROM Colaboradores");
  const long all = number("SELECT Count(*)" + ClausesOf(BenchSelection(high)).rest);
  if (all < rows) {
    throw std::runtime_error("Los datos de " + options.folder + " solo dan " + std::to_string(all) +
                             " filas y se piden " + std::to_string(rows) +
                             ". Borre la carpeta o elija otra con --carpeta.");
  }
  while (low < high) {
    const long middle = low + (high - low) / 2;
    const Clauses clauses = ClausesOf(BenchSelection(middle));
    if (number("SELECT Count(*)" + clauses.rest) >= rows) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return low;
}

class Rounds {
 public:
  void Add(const std::string& step, const Measures& measures) {
    for (const auto& [key, value] : measures) values_[step][key].push_back(value);
  }
  bool Has(const std::string& step, const std::string& key) const {
    const auto found = values_.find(step);
    return found != values_.end() && found->second.count(key) != 0;
  }
  double Median(const std::string& step, const std::string& key) const {
    std::vector<double> sorted = values_.at(step).at(key);
    std::sort(sorted.begin(), sorted.end());
    return sorted[sorted.size() / 2];
  }

 private:
  std::map<std::string, std::map<std::string, std::vector<double>>> values_;
};

void Print(const Rounds& rounds) {
  const double floor = rounds.Median("suelo", "total");
  const double cpuFloor = rounds.Median("suelo", "total.cpu");
  const double rows = rounds.Median("suelo", "filas");
  std::printf("\n%.0f filas, 12 columnas\n", rows);
  std::printf("%-34s %9s %7s %9s %7s %6s %11s %8s %9s\n", "paso", "segundos", "suelo=1", "CPU", "suelo=1",
              "parte", "filas/s", "memoria", "fichero");
  const auto line = [&](const std::string& label, const std::string& step, const std::string& key) {
    if (!rounds.Has(step, key)) return;
    const double seconds = rounds.Median(step, key);
    const double cpu = rounds.Median(step, key + ".cpu");
    std::printf("%-34s %9.3f %7.2f %9.3f %7.2f %5.0f%% %11.0f", label.c_str(), seconds, seconds / floor, cpu,
                cpu / cpuFloor, 100 * cpu / rounds.Median(step, "total.cpu"), rows / seconds);
    if (key == "total") {
      std::printf(" %4.0f MiB %5.0f MiB", MiB(rounds.Median(step, "memoria")),
                  MiB(rounds.Median(step, "octetos")));
    }
    std::printf("\n");
  };
  line("suelo", "suelo", "total");
  line("  sentencia, el motor solo", "suelo", "sentencia");
  line("  celdas, codificadas y escritas", "suelo", "celdas");
  line("exportacion", "exportar", "total");
  for (const char* stage : {"inicio", "preparacion", "pendientes", "codigos", "repetidas", "bloques",
                            "cuentas", "hojas", "finalizacion"}) {
    line(std::string("  ") + stage, "exportar", stage);
  }
  line("libxlsxwriter, .xlsx", "xlsxwriter", "total");
  line("  sentencia, el motor solo", "xlsxwriter", "sentencia");
  line("  celdas", "xlsxwriter", "celdas");
  line("xlwt, .xls, solo celdas", "xlwt", "total");
  line("LibreOffice, .csv a .xls", "libreoffice", "total");
}

int Main(const Options& options, const std::string& program) {
  MakeData(options, *std::max_element(options.rows.begin(), options.rows.end()));
  for (const long rows : options.rows) {
    const long last = LastCollaborator(options, rows);
    Rounds rounds;
    for (int round = 0; round < options.rounds; ++round) {
      for (const Step& step : kSteps) {
        if (rows <= step.mostRows) rounds.Add(step.name, Ask(program, step, options.folder, last));
      }
    }
    Print(rounds);
  }
  return 0;
}

Options Parse(const std::vector<std::string>& words) {
  Options options;
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    const std::string& value = words[i + 1];
    if (words[i] == "--carpeta") {
      options.folder = value;
    } else if (words[i] == "--veces") {
      options.rounds = std::max(1, std::stoi(value));
    } else if (words[i] == "--filas") {
      options.rows.clear();
      std::istringstream list(value);
      for (std::string number; std::getline(list, number, ',');) options.rows.push_back(std::stol(number));
    } else {
      throw std::runtime_error("opción desconocida: " + words[i]);
    }
  }
  if (options.rows.empty()) throw std::runtime_error("--filas necesita al menos un número");
  return options;
}

}  // namespace
}  // namespace velmar::bench

int main(int count, char** words) {
  try {
    const std::vector<std::string> all(words + 1, words + count);
    if (all.size() == 4 && all[0] == "--paso")
      return velmar::bench::RunStep(all[1], all[2], std::stol(all[3]));
    return velmar::bench::Main(velmar::bench::Parse(all),
                               std::filesystem::read_symlink("/proc/self/exe").string());
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
