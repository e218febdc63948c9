#include "platform/controls/ListControl.h"

#include <cstddef>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Collation.h"

namespace velmar::controls {

void ListControl::AddItem(std::string text) {
  long place = ListCount();
  if (sorted_) {
    long low = 0;
    while (low < place) {
      const long middle = low + (place - low) / 2;
      if (text::CompareText(text, At(middle).text) < 0) {
        place = middle;
      } else {
        low = middle + 1;
      }
    }
  }
  Insert(std::move(text), place);
}

void ListControl::AddItem(std::string text, long index) {
  if (index < 0 || index > ListCount()) OutOfRange(kSubscriptOutOfRange, index);
  Insert(std::move(text), index);
}

void ListControl::Insert(std::string text, long index) {
  const auto place = static_cast<std::size_t>(index);
  Notify([&](ControlObserver& observer) { observer.AboutToInsert(*this, place, 1); });
  items_.Insert(place, Item{std::move(text)});
  if (listIndex_ >= index) ++listIndex_;
  newIndex_ = index;
  Notify([&](ControlObserver& observer) { observer.Inserted(*this); });
}

void ListControl::RemoveItem(long index) {
  Leaving(At(index));
  const auto place = static_cast<std::size_t>(index);
  Notify([&](ControlObserver& observer) { observer.AboutToRemove(*this, place, 1); });
  items_.Remove(place);
  newIndex_ = -1;
  const bool wasChosen = listIndex_ == index;
  if (wasChosen) {
    listIndex_ = -1;
  } else if (listIndex_ > index) {
    --listIndex_;
  }
  Notify([&](ControlObserver& observer) { observer.Removed(*this); });
  if (wasChosen) NotifyChanged(Property::kSelection);
}

void ListControl::Clear() {
  Notify([&](ControlObserver& observer) { observer.AboutToReset(*this); });
  items_.Truncate(0);
  listIndex_ = -1;
  newIndex_ = -1;
  Emptied();
  Notify([&](ControlObserver& observer) { observer.WasReset(*this); });
}

std::string ListControl::List(long index) const {
  return index == -1 ? std::string() : At(index).text;
}

void ListControl::List(long index, std::string text) {
  At(index).text = std::move(text);
  Notify([&](ControlObserver& observer) { observer.RowChanged(*this, static_cast<std::size_t>(index)); });
}

long ListControl::ItemData(long index) const {
  return At(index).data;
}

void ListControl::ItemData(long index, long data) {
  At(index).data = data;
}

void ListControl::ListIndex(long index) {
  if (index < -1 || index >= ListCount()) OutOfRange(kInvalidPropertyValue, index);
  if (MoveTo(index) && index >= 0) Raise(Click);
}

bool ListControl::MoveTo(long index) {
  if (listIndex_ == index) return false;
  listIndex_ = index;
  NotifyChanged(Property::kSelection);
  return true;
}

long ListControl::FindStringExact(std::string_view text, long after) const {
  const long count = ListCount();
  const long start = Holds(after) ? after + 1 : 0;
  for (long i = 0; i < count; ++i) {
    const long index = (start + i) % count;
    if (text::EqualText(At(index).text, text)) return index;
  }
  return -1;
}

ListControl::Item& ListControl::At(long index) {
  if (!Holds(index)) OutOfRange(kSubscriptOutOfRange, index);
  return items_[static_cast<std::size_t>(index)];
}

const ListControl::Item& ListControl::At(long index) const {
  if (!Holds(index)) OutOfRange(kSubscriptOutOfRange, index);
  return items_[static_cast<std::size_t>(index)];
}

void ListControl::OutOfRange(long number, long index) const {
  throw RuntimeError(number,
                     "La lista \"" + Name() + "\" no tiene el elemento " + std::to_string(index) + ": hay " +
                         std::to_string(ListCount()) + ", contados desde 0.",
                     Name());
}

}  // namespace velmar::controls
