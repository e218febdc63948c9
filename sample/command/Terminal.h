#pragma once

#include <ostream>

namespace velmar::sample {

/// Where a command writes. The streams are borrowed.
struct Terminal {
  std::ostream& out;
  std::ostream& err;
  bool outIsTerminal = false;  ///< a person reads out as it is written
  bool errIsTerminal = false;
};

}  // namespace velmar::sample
