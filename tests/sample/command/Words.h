#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "sample/command/CommandLine.h"

namespace velmar::sample {

/// What a command gave.
struct Ended {
  int code = -1;
  std::string out;
  std::string err;
};

/// Runs a command as from a shell, on a terminal or with its streams in files.
inline Ended RunWords(const std::vector<std::string>& words, bool onTerminal = false) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = CommandLine({out, err, onTerminal, onTerminal}).Run(words);
  return {code, out.str(), err.str()};
}

}  // namespace velmar::sample
