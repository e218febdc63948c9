#include "platform/com/Module.h"

#include <atomic>

namespace velmar::com {
namespace {

std::atomic<long> uses{0};

}  // namespace

void Module::Enter() noexcept {
  ++uses;
}

void Module::Leave() noexcept {
  --uses;
}

bool Module::CanUnload() noexcept {
  return uses.load() == 0;
}

}  // namespace velmar::com
