#include <cstddef>
#include <cstdint>

#include "fuzz/Targets.h"

namespace {

constexpr velmar::fuzz::Target Chosen() {
  for (const velmar::fuzz::Target& target : velmar::fuzz::kTargets) {
    if (target.name == VELMAR_FUZZ_TARGET) return target;
  }
  throw "no such target";
}

constexpr velmar::fuzz::Target kChosen = Chosen();

}  // namespace

// libFuzzer calls this with one input after the other; what leaves it as an exception is reported as a crash.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  kChosen.run({bytes, size});
  return 0;
}
