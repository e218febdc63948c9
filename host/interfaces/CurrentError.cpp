#include "host/interfaces/CurrentError.h"

#include <utility>

namespace velmar {

namespace {

ErrObject& Current() noexcept {
  thread_local ErrObject current;
  return current;
}

}  // namespace

const ErrObject& CurrentError() noexcept {
  return Current();
}

CurrentErrorScope::CurrentErrorScope(const RuntimeError& error) {
  ErrObject next;
  next.Set(error);
  previous_ = std::exchange(Current(), std::move(next));
}

CurrentErrorScope::~CurrentErrorScope() {
  Current() = std::move(previous_);
}

}  // namespace velmar
