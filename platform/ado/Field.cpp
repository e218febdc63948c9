#include "platform/ado/Field.h"

#include "platform/ado/Cursor.h"

namespace ADODB {

const std::string& Field::Name() const {
  return cursor_->Columns()[index_].name;
}

Variant Field::Value() const {
  return cursor_->Value(index_);
}

}  // namespace ADODB
