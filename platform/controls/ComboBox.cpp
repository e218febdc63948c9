#include "platform/controls/ComboBox.h"

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::controls {

void ComboBox::Text(std::string_view text) {
  const long index = FindStringExact(text);
  if (index < 0 && !text.empty()) {
    throw RuntimeError(kInvalidPropertyValue,
                       "La lista \"" + Name() + "\" no tiene el elemento \"" + std::string(text) + "\".",
                       Name());
  }
  ListIndex(index);
}

bool ComboBox::UserChoose(long index) {
  if (!Holds(index) || !UserFocus()) return false;
  MoveTo(index);
  Raise(Click);
  return true;
}

}  // namespace velmar::controls
