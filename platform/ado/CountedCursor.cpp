#include "platform/ado/CountedCursor.h"

namespace ADODB {

void CountedCursor::MoveNext() {
  Owner();
  RequireRow();
  ++position_;
}

void CountedCursor::MoveFirst() {
  Owner();
  position_ = 0;
}

}  // namespace ADODB
