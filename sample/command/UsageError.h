#pragma once

#include <stdexcept>

namespace velmar::sample {

/// A command line that cannot be understood; its text says what is wrong, for the person who typed it.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace velmar::sample
