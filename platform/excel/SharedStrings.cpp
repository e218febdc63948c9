#include "platform/excel/SharedStrings.h"

#include <algorithm>
#include <cstring>
#include <functional>

#include "platform/excel/Record.h"

namespace velmar::excel {

namespace {

constexpr std::size_t kStringHead = 3;  // length and flag
constexpr std::size_t kFirstSlots = 1024;

}  // namespace

SharedStrings::SharedStrings(std::uint32_t firstIndex, std::span<const std::uint8_t> tail)
    : nextIndex_(firstIndex), slots_(kFirstSlots) {
  records_.Bytes(tail);
}

std::uint32_t SharedStrings::Index(std::string_view utf8) {
  if (utf8.empty()) return kNone;
  const std::size_t full = std::hash<std::string_view>()(utf8);
  const auto hash = static_cast<std::uint32_t>(full ^ full >> 32);
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
    Slot& slot = slots_[at];
    if (slot.entry == kNone) {
      slot.hash = hash;
      slot.entry = static_cast<std::uint32_t>(entries_.size());
      const std::uint32_t index = Add(utf8);
      entries_.push_back({texts_.Size(), static_cast<std::uint32_t>(utf8.size()), index});
      std::memcpy(texts_.Extend(utf8.size()), utf8.data(), utf8.size());
      if (entries_.size() * 2 > slots_.size()) Rehash();
      return index;
    }
    if (slot.hash != hash) continue;
    const Entry& entry = entries_[slot.entry];
    if (entry.length == utf8.size() &&
        std::memcmp(texts_.Content().data() + entry.place, utf8.data(), utf8.size()) == 0)
      return entry.index;
  }
}

void SharedStrings::Rehash() {
  std::vector<Slot> old(slots_.size() * 2);
  old.swap(slots_);
  const std::size_t mask = slots_.size() - 1;
  for (const Slot& slot : old) {
    if (slot.entry == kNone) continue;
    std::size_t at = slot.hash & mask;
    while (slots_[at].entry != kNone) at = (at + 1) & mask;
    slots_[at] = slot;
  }
}

std::uint32_t SharedStrings::Add(std::string_view utf8) {
  if (BiffString::IsPlain(utf8)) {
    WritePlain(utf8);
  } else {
    converted_.Assign(utf8);
    if (converted_.Empty()) return kNone;
    WriteConverted();
  }
  ++count_;
  return nextIndex_++;
}

void SharedStrings::OpenRecord() {
  if (recordOpen_) CloseRecord();
  recordPlace_ = records_.Size();
  records_.Record(Record::kContinue, 0);
  recordOpen_ = true;
}

void SharedStrings::CloseRecord() {
  records_.Patch16(recordPlace_ + 2,
                   static_cast<std::uint16_t>(records_.Size() - recordPlace_ - Record::kHead));
  recordOpen_ = false;
}

std::size_t SharedStrings::RoomInRecord() const {
  return recordOpen_ ? recordPlace_ + Record::kHead + Record::kLongest - records_.Size() : 0;
}

void SharedStrings::BeginString(std::size_t length, bool narrow, std::size_t firstCharacter) {
  if (RoomInRecord() < kStringHead + firstCharacter) OpenRecord();
  records_.U16(static_cast<std::uint16_t>(length));
  records_.U8(narrow ? 0 : 1);
}

void SharedStrings::WritePlain(std::string_view text) {
  BeginString(text.size(), true, 1);
  while (true) {
    const std::size_t count = std::min(text.size(), RoomInRecord());
    std::memcpy(records_.Extend(count), text.data(), count);
    text.remove_prefix(count);
    if (text.empty()) return;
    OpenRecord();
    records_.U8(0);
  }
}

void SharedStrings::WriteConverted() {
  const std::u16string& units = converted_.Units();
  const std::size_t width = converted_.Narrow() ? 1 : 2;
  const auto isLead = [&](std::size_t i) { return (units[i] & 0xFC00) == 0xD800; };
  BeginString(units.size(), converted_.Narrow(), isLead(0) ? 2 * width : width);
  for (std::size_t done = 0;;) {
    std::size_t count = std::min(units.size() - done, RoomInRecord() / width);
    if (done + count < units.size() && count > 0 && isLead(done + count - 1)) --count;
    converted_.WriteUnits(records_, done, count);
    done += count;
    if (done == units.size()) return;
    OpenRecord();
    records_.U8(converted_.Narrow() ? 0 : 1);
  }
}

std::size_t SharedStrings::Finish() {
  if (recordOpen_) CloseRecord();
  const std::size_t place = records_.Size();
  const std::size_t over = (place + Record::kHead) % Record::kSector;
  std::size_t filler = over == 0 ? 0 : Record::kSector - over;
  constexpr std::size_t kLeast = Record::kHead + kStringHead + 1;
  if (filler > 0 && filler < kLeast) filler += Record::kSector;
  if (filler > 0) {
    records_.Record(Record::kContinue, filler - Record::kHead);
    const std::size_t blanks = filler - Record::kHead - kStringHead;
    records_.U16(static_cast<std::uint16_t>(blanks));
    records_.U8(0);
    records_.Fill(blanks, ' ');
    fillerCount_ = 1;
  }
  records_.Record(Record::kEof, 0);
  return place;
}

}  // namespace velmar::excel
