#include "fuzz/AllocationWatch.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<bool> watching = false;
std::atomic<std::ptrdiff_t> held = 0;
std::atomic<std::ptrdiff_t> most = 0;

void* Taken(std::size_t size) noexcept {
  void* const block = std::malloc(size == 0 ? 1 : size);
  if (block != nullptr && watching) {
    // By the size that was asked for: memory that is never touched counts too.
    const std::ptrdiff_t now = held += static_cast<std::ptrdiff_t>(malloc_usable_size(block));
    if (now > most) most = now;
  }
  return block;
}

void Given(void* block) noexcept {
  if (block != nullptr && watching) held -= static_cast<std::ptrdiff_t>(malloc_usable_size(block));
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) {
  void* const block = Taken(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
void* operator new[](std::size_t size) {
  return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Taken(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return Taken(size);
}
void operator delete(void* block) noexcept {
  Given(block);
}
void operator delete[](void* block) noexcept {
  Given(block);
}
void operator delete(void* block, std::size_t) noexcept {
  Given(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  Given(block);
}

namespace velmar::fuzz {

AllocationWatch::AllocationWatch() noexcept {
  held = 0;
  most = 0;
  watching = true;
}

AllocationWatch::~AllocationWatch() {
  watching = false;
}

std::size_t AllocationWatch::Peak() const noexcept {
  return static_cast<std::size_t>(most.load());
}

}  // namespace velmar::fuzz
