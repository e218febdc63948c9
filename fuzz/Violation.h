#pragma once

#include <stdexcept>
#include <string>

namespace velmar::fuzz {

/// What must hold for every input does not hold for this one.
class Violation : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

inline void Demand(bool holds, const std::string& what) {
  if (!holds) throw Violation(what);
}

}  // namespace velmar::fuzz
