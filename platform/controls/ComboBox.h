#pragma once

#include "platform/controls/ListControl.h"

namespace velmar::controls {

/// A box that drops down a list, of which one item can be chosen and nothing else typed (Style 2).
class ComboBox : public ListControl {
 public:
  using ListControl::ListControl;
  using ListControl::Text;

  /// Chooses the item with this text, without regard to case; the empty text chooses none.
  /// Raises kInvalidPropertyValue if there is none.
  void Text(std::string_view text);

  /// The user takes an item from the list; Click is raised also if it is the one that was chosen.
  bool UserChoose(long index);
};

}  // namespace velmar::controls
