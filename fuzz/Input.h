#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace velmar::fuzz {

using Bytes = std::span<const std::uint8_t>;

/// Takes choices and texts off the front of an input. Behind its end there are zeros and empty texts.
class Input {
 public:
  explicit Input(Bytes bytes) : left_(bytes) {}

  bool Empty() const { return left_.empty(); }

  std::uint8_t Byte() {
    if (left_.empty()) return 0;
    const std::uint8_t byte = left_.front();
    left_ = left_.subspan(1);
    return byte;
  }
  /// Three bytes, the lowest first.
  std::uint32_t Number() {
    const std::uint32_t low = Byte();
    const std::uint32_t middle = Byte();
    return low | (middle << 8) | (static_cast<std::uint32_t>(Byte()) << 16);
  }
  Bytes Take(std::size_t count) {
    const Bytes taken = left_.first(std::min(count, left_.size()));
    left_ = left_.subspan(taken.size());
    return taken;
  }
  /// All up to the next line feed, which is taken too.
  std::string Line() {
    const auto end = std::find(left_.begin(), left_.end(), std::uint8_t{'\n'});
    std::string line(left_.begin(), end);
    left_ = left_.subspan(std::min(line.size() + 1, left_.size()));
    return line;
  }
  std::string Rest() {
    std::string rest(left_.begin(), left_.end());
    left_ = {};
    return rest;
  }

 private:
  Bytes left_;
};

}  // namespace velmar::fuzz
