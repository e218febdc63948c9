#include "platform/error/ErrObject.h"

namespace velmar {

void ErrObject::Clear() noexcept {
  number_ = 0;
  description_.clear();
  source_.clear();
}

void ErrObject::Set(const RuntimeError& error) {
  number_ = error.Number();
  description_ = error.Description();
  source_ = error.Source();
}

}  // namespace velmar
