#include "platform/excel/FileTransaction.h"

#include <algorithm>

#include "platform/error/ErrObject.h"

namespace velmar::excel {

FileTransaction::~FileTransaction() {
  if (kept_) return;
  // If even this fails, the disk has gone; the old header still leads to the old contents.
  ErrObject ignored;
  ignored.Try([this] { TakeBack(); });
}

void FileTransaction::Write(std::uint64_t offset, std::span<const std::uint8_t> bytes) {
  if (offset < size_) {
    Old old{offset, std::vector<std::uint8_t>(std::min<std::uint64_t>(bytes.size(), size_ - offset))};
    file_.Read(offset, old.bytes);
    old_.push_back(std::move(old));
  }
  file_.Write(offset, bytes);
}

void FileTransaction::TakeBack() {
  file_.Resize(size_);
  std::for_each(old_.rbegin(), old_.rend(), [this](const Old& old) { file_.Write(old.offset, old.bytes); });
}

}  // namespace velmar::excel
