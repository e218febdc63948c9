#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <utility>

#include "platform/excel/ByteWriter.h"

namespace velmar::excel {

/// The sectors that a statement is going to write, gathered first, so that they leave in few large writes.
class SectorImages {
 public:
  using Sink = std::function<void(std::uint64_t offset, std::span<const std::uint8_t>)>;

  /// Whole sectors, side by side from first on. Show leaves them with their owner until Write is through.
  void Keep(std::uint32_t first, ByteWriter bytes);
  void Show(std::uint32_t first, std::span<const std::uint8_t> bytes);

  /// Hands all over, ascending, neighbours joined as long as they are small.
  void Write(const Sink& sink) const;

 private:
  struct Image {
    ByteWriter own;
    std::span<const std::uint8_t> shown;
    std::span<const std::uint8_t> Bytes() const { return shown.empty() ? own.Content() : shown; }
  };
  std::map<std::uint32_t, Image> images_;
};

}  // namespace velmar::excel
