#include "platform/excel/SectorImages.h"

#include "platform/excel/CompoundFile.h"

namespace velmar::excel {

void SectorImages::Keep(std::uint32_t first, ByteWriter bytes) {
  images_[first] = {std::move(bytes), {}};
}

void SectorImages::Show(std::uint32_t first, std::span<const std::uint8_t> bytes) {
  images_[first] = {{}, bytes};
}

void SectorImages::Write(const Sink& sink) const {
  constexpr std::size_t kSmall = 65'536;
  ByteWriter joined;
  std::uint64_t begin = 0;
  const auto flush = [&] {
    if (joined.Size() > 0) sink(begin, joined.Content());
    joined = {};
  };
  for (const auto& [first, image] : images_) {
    const auto bytes = image.Bytes();
    const std::uint64_t offset = CompoundFile::Offset(first);
    if (bytes.size() > kSmall || offset != begin + joined.Size()) flush();
    if (bytes.size() > kSmall) {
      sink(offset, bytes);
      continue;
    }
    if (joined.Size() == 0) begin = offset;
    joined.Bytes(bytes);
  }
  flush();
}

}  // namespace velmar::excel
