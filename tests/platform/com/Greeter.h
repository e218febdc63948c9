#pragma once

#include <string>

#include "platform/com/Guid.h"

namespace velmar::com {

/// What the objects of the test server offer.
class Greeter {
 public:
  virtual ~Greeter() = default;
  virtual std::string Greet(const std::string& whom) = 0;
};

inline constexpr Guid kGreeterClass{0x12345678, 0x9ABC, 0xDEF0, {1, 2, 3, 4, 5, 6, 7, 8}};

}  // namespace velmar::com
