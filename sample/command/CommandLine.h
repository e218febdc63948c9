#pragma once

#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sample/GeneratorOptions.h"
#include "sample/command/Arguments.h"
#include "sample/command/Terminal.h"

namespace velmar::sample {

/// The commands of velmar_sample: crear makes the sample databases; exportar, plantillas and sentencia work
/// with a user's stored templates; demo makes databases below the current folder and has the wizard export
/// from them. What a user reads is Spanish.
class CommandLine {
 public:
  explicit CommandLine(const Terminal& terminal) : terminal_(terminal) {}

  /// Runs the command of the words (without the program's name) and gives its exit code, one of ExitCode. The
  /// reason of any but kDone stands on err.
  int Run(const std::vector<std::string>& words);

 private:
  struct Command {
    std::string_view name;
    std::string_view usage;
    std::span<const Arguments::Option> options;
    void (CommandLine::*run)(const Arguments&);
  };

  static std::span<const Command> Commands();
  static void PrintUsage(std::ostream& stream);
  void Create(const Arguments& arguments);
  void Export(const Arguments& arguments);
  void ListTemplates(const Arguments& arguments);
  void PrintStatement(const Arguments& arguments);
  void Demo(const Arguments& arguments);
  /// The databases that stand in the demo's folder, unless the words ask for others.
  void UseExisting(const Arguments& arguments, const GeneratorOptions& options);
  void Generate(const GeneratorOptions& options);
  void PrintWorkbook(const std::string& file);

  Terminal terminal_;
};

}  // namespace velmar::sample
