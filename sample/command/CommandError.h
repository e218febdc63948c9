#pragma once

#include <stdexcept>
#include <string>

#include "sample/command/ExitCode.h"

namespace velmar::sample {

/// A command that could not do its work, with the exit code that says why; its text is for the person who
/// gave the command.
class CommandError : public std::runtime_error {
 public:
  CommandError(ExitCode code, const std::string& text) : std::runtime_error(text), code_(code) {}

  ExitCode Code() const noexcept { return code_; }

 private:
  ExitCode code_;
};

}  // namespace velmar::sample
