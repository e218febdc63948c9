#include <unistd.h>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "platform/error/RuntimeError.h"
#include "sample/OperationTrace.h"
#include "sample/command/CommandLine.h"
#include "sample/command/ExitCode.h"

int main(int count, char** words) {
  std::unique_ptr<velmar::sample::OperationTrace> trace;
  try {
    trace = velmar::sample::OperationTrace::FromEnvironment();
  } catch (const velmar::RuntimeError& error) {
    std::cerr << "Error " << error.Number() << ": " << error.Description() << '\n';
    return velmar::sample::kFailed;
  }
  return velmar::sample::CommandLine(
             {std::cout, std::cerr, isatty(STDOUT_FILENO) == 1, isatty(STDERR_FILENO) == 1})
      .Run(std::vector<std::string>(words + 1, words + count));
}
