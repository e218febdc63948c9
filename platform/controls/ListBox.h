#pragma once

#include <functional>
#include <vector>

#include "platform/controls/ListControl.h"

namespace velmar::controls {

/// A list from which the user chooses one item (MultiSelect 0) or any number of them (2).
class ListBox : public ListControl {
 public:
  using ListControl::ListControl;

  long MultiSelect() const noexcept { return multiSelect_; }
  /// Drops the selection. Raises kInvalidPropertyValue for anything but 0 and 2.
  void MultiSelect(long mode);
  /// In how many columns the items are laid out, 0 for one with a scroll bar.
  long Columns() const noexcept { return columns_; }
  void Columns(long columns);

  bool Selected(long index) const;
  /// With single selection the same as choosing the item, or none, through ListIndex.
  void Selected(long index, bool selected);
  /// How many items are selected; 0 or 1 with single selection.
  long SelCount() const noexcept;

  /// The first item that shows.
  long TopIndex() const noexcept { return topIndex_; }
  /// Scrolls. Raises kInvalidPropertyValue outside 0 to ListCount - 1, but 0 always goes.
  void TopIndex(long index);

  /// A click: selects this item alone.
  bool UserClick(long index);
  /// With the shift key or the mouse drawn over items: selects all between the two, and no others.
  bool UserSelect(long first, long last);
  /// Selects exactly these items; `current` gets the focus mark.
  bool UserSelectItems(const std::vector<long>& items, long current);
  /// A double click on an item, which selects it first, or with -1 beside the items.
  bool UserDoubleClick(long index);

  std::function<void()> DblClick;

 protected:
  void Leaving(const Item& item) override;
  void Emptied() override;

 private:
  bool Many() const noexcept { return multiSelect_ != 0; }
  void Mark(long index, bool selected);

  long multiSelect_ = 0;
  long columns_ = 0;
  long selCount_ = 0;
  long topIndex_ = 0;
};

}  // namespace velmar::controls
