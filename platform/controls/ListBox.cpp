#include "platform/controls/ListBox.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::controls {

void ListBox::MultiSelect(long mode) {
  if (mode != 0 && mode != 2) {
    throw RuntimeError(kInvalidPropertyValue,
                       "La lista \"" + Name() + "\" admite selección simple (0) o extendida (2), no " +
                           std::to_string(mode) + ".",
                       Name());
  }
  for (long i = 0; Many() && i < ListCount(); ++i) Mark(i, false);
  multiSelect_ = mode;
  MoveTo(-1);
}

void ListBox::Columns(long columns) {
  columns_ = columns;
  NotifyChanged(Property::kColumns);
}

bool ListBox::Selected(long index) const {
  const Item& item = At(index);
  return Many() ? item.selected : index == ListIndex();
}

void ListBox::Selected(long index, bool selected) {
  if (Selected(index) == selected) return;
  if (!Many()) {
    ListIndex(selected ? index : -1);
    return;
  }
  Mark(index, selected);
  NotifyChanged(Property::kSelection);
}

long ListBox::SelCount() const noexcept {
  if (Many()) return selCount_;
  return ListIndex() >= 0 ? 1 : 0;
}

void ListBox::TopIndex(long index) {
  if (index != 0 && !Holds(index)) {
    throw RuntimeError(kInvalidPropertyValue,
                       "La lista \"" + Name() + "\" no puede mostrar primero el elemento " +
                           std::to_string(index) + ": hay " + std::to_string(ListCount()) + ".",
                       Name());
  }
  topIndex_ = index;
  Notify(
      [&](ControlObserver& observer) { observer.ScrollRequested(*this, static_cast<std::size_t>(index)); });
}

bool ListBox::UserClick(long index) {
  return UserSelect(index, index);
}

bool ListBox::UserSelect(long first, long last) {
  if (!Holds(first) || !Holds(last)) return false;
  std::vector<long> items(static_cast<std::size_t>(std::abs(last - first)) + 1);
  std::iota(items.begin(), items.end(), std::min(first, last));
  return UserSelectItems(items, last);
}

bool ListBox::UserSelectItems(const std::vector<long>& items, long current) {
  if (!std::all_of(items.begin(), items.end(), [this](long index) { return Holds(index); })) return false;
  if (!UserFocus()) return false;
  if (Many()) {
    for (long i = 0; selCount_ > 0 && i < ListCount(); ++i) Mark(i, false);
    for (const long index : items) Mark(index, true);
    NotifyChanged(Property::kSelection);
  }
  MoveTo(Holds(current) ? current : -1);
  Raise(Click);
  return true;
}

bool ListBox::UserDoubleClick(long index) {
  if (Holds(index) ? !UserClick(index) : !UserFocus()) return false;
  // The first click may have put an end to it.
  if (!CanAct()) return false;
  Raise(DblClick);
  return true;
}

void ListBox::Mark(long index, bool selected) {
  Item& item = At(index);
  if (item.selected == selected) return;
  item.selected = selected;
  selCount_ += selected ? 1 : -1;
}

void ListBox::Leaving(const Item& item) {
  if (item.selected) --selCount_;
  if (topIndex_ > 0 && topIndex_ >= ListCount() - 1) topIndex_ = std::max(ListCount() - 2, 0L);
}

void ListBox::Emptied() {
  selCount_ = 0;
  topIndex_ = 0;
}

}  // namespace velmar::controls
