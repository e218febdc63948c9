#pragma once

#include <cstddef>

namespace velmar::fuzz {

/// Watches what the program takes from the heap by `new` while it exists. One at a time.
class AllocationWatch {
 public:
  AllocationWatch() noexcept;
  ~AllocationWatch();
  AllocationWatch(const AllocationWatch&) = delete;
  AllocationWatch& operator=(const AllocationWatch&) = delete;

  /// The most bytes that were held at once beyond those of the beginning.
  std::size_t Peak() const noexcept;
};

}  // namespace velmar::fuzz
