#pragma once

#include <cstddef>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sample/GeneratorOptions.h"
#include "sample/command/Arguments.h"

namespace velmar::sample {

/// The commands of velmar_sample: crear makes the sample databases, exportar-sql takes a Jet statement to a
/// workbook, demo makes databases below the current folder and has the wizard export from them. What a user
/// reads is Spanish.
class CommandLine {
 public:
  CommandLine(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

  /// Runs the command of the words (without the program's name). 0: done; 1: it failed, and the reason stands
  /// on err; 2: the words cannot be understood.
  int Run(const std::vector<std::string>& words);

 private:
  struct Command {
    std::string_view name;
    std::string_view usage;
    std::span<const Arguments::Option> options;
    void (CommandLine::*run)(const Arguments&);
  };

  static std::span<const Command> Commands();
  void PrintUsage(std::ostream& stream) const;
  void Create(const Arguments& arguments);
  void ExportSql(const Arguments& arguments);
  void Demo(const Arguments& arguments);
  void Generate(const GeneratorOptions& options);
  void PrintWorkbook(const std::string& file, std::size_t rows, std::size_t sheets);

  std::ostream& out_;
  std::ostream& err_;
};

}  // namespace velmar::sample
