#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/controls/ChunkedSequence.h"
#include "platform/controls/Control.h"

namespace velmar::controls {

/// What list boxes and combo boxes have in common: items with a text and a number each, counted from 0. An
/// index that no item has raises kSubscriptOutOfRange, unless something else is said.
class ListControl : public Control {
 public:
  using Control::Control;

  /// True if AddItem without an index puts each item at its place in the alphabet, without regard to case,
  /// behind equal ones. Set it while the list is empty.
  bool Sorted() const noexcept { return sorted_; }
  void Sorted(bool sorted) noexcept { sorted_ = sorted; }

  /// Adds an item at the end or, in a sorted list, at its place.
  void AddItem(std::string text);
  /// Adds an item at `index`, at most ListCount, also in a sorted list.
  void AddItem(std::string text, long index);
  void RemoveItem(long index);
  void Clear();
  /// The index of the item added last, -1 if items were removed since.
  long NewIndex() const noexcept { return newIndex_; }
  long ListCount() const noexcept { return static_cast<long>(items_.size()); }

  /// An item's text; the empty text for -1, so that List(ListIndex()) reads with nothing chosen.
  std::string List(long index) const;
  void List(long index, std::string text);
  /// A number that goes with the item wherever it moves; 0 at first.
  long ItemData(long index) const;
  void ItemData(long index, long data);

  /// The chosen item or, in a list with multiple selection, the one with the focus mark; -1 for none.
  long ListIndex() const noexcept { return listIndex_; }
  /// Chooses the item and raises Click if it was not the chosen one. Raises kInvalidPropertyValue outside -1
  /// to ListCount - 1.
  void ListIndex(long index);
  /// The text of the item at ListIndex, empty for none.
  std::string Text() const { return List(listIndex_); }

  /// The first item that equals the text over its whole length, without regard to case. The search starts
  /// behind item `after` (-1: at the first) and goes round; -1 if there is none.
  long FindStringExact(std::string_view text, long after = -1) const;

  std::function<void()> Click;

 protected:
  struct Item {
    std::string text;
    long data = 0;
    bool selected = false;
  };

  Item& At(long index);
  const Item& At(long index) const;
  bool Holds(long index) const noexcept { return index >= 0 && index < ListCount(); }
  /// Moves ListIndex without an event. True if it was another.
  bool MoveTo(long index);
  /// The item is about to go. For what is counted over items.
  virtual void Leaving(const Item& /*item*/) {}
  virtual void Emptied() {}

 private:
  void Insert(std::string text, long index);
  [[noreturn]] void OutOfRange(long number, long index) const;

  ChunkedSequence<Item> items_;
  long listIndex_ = -1;
  long newIndex_ = -1;
  bool sorted_ = false;
};

}  // namespace velmar::controls
