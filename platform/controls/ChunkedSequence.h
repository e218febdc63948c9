#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace velmar::controls {

/// A sequence with access by index in which insertion and removal anywhere stay quick for 100,000 elements
/// and more: it is kept in chunks, so only a chunk's worth of elements moves. Indexes must be in range. An
/// element's address holds until the next insertion or removal.
template <typename T>
class ChunkedSequence {
 public:
  std::size_t size() const noexcept { return size_; }
  bool empty() const noexcept { return size_ == 0; }

  T& operator[](std::size_t index) {
    const Place place = Find(index);
    return chunks_[place.chunk][index - place.begin];
  }
  const T& operator[](std::size_t index) const {
    const Place place = Find(index);
    return chunks_[place.chunk][index - place.begin];
  }

  /// The new element stands at `index`, which may be the size.
  void Insert(std::size_t index, T value) {
    if (chunks_.empty()) chunks_.emplace_back();
    const Place place =
        index == size_ ? Place{chunks_.size() - 1, size_ - chunks_.back().size()} : Find(index);
    std::vector<T>& chunk = chunks_[place.chunk];
    chunk.insert(chunk.begin() + Offset(index - place.begin), std::move(value));
    ++size_;
    last_ = place;
    if (chunk.size() > kGreatest) Split(place.chunk);
  }

  void Remove(std::size_t index) {
    const Place place = Find(index);
    std::vector<T>& chunk = chunks_[place.chunk];
    chunk.erase(chunk.begin() + Offset(index - place.begin));
    --size_;
    if (chunk.empty()) {
      chunks_.erase(chunks_.begin() + Offset(place.chunk));
      last_ = Place{};
    }
  }

  /// Only the first `count` elements stay.
  void Truncate(std::size_t count) {
    while (size_ > count) {
      std::vector<T>& chunk = chunks_.back();
      const std::size_t drop = std::min(chunk.size(), size_ - count);
      chunk.erase(chunk.end() - Offset(drop), chunk.end());
      size_ -= drop;
      if (chunk.empty()) chunks_.pop_back();
    }
    last_ = Place{};
  }

 private:
  static constexpr std::size_t kGreatest = 512;

  struct Place {
    std::size_t chunk = 0;
    std::size_t begin = 0;  // index of the chunk's first element
  };

  static std::ptrdiff_t Offset(std::size_t count) { return static_cast<std::ptrdiff_t>(count); }

  // Starts at the chunk found last: most accesses go on where the one before was.
  Place Find(std::size_t index) const {
    Place place = last_;
    while (index < place.begin) place.begin -= chunks_[--place.chunk].size();
    while (index >= place.begin + chunks_[place.chunk].size()) place.begin += chunks_[place.chunk++].size();
    last_ = place;
    return place;
  }

  void Split(std::size_t at) {
    std::vector<T>& chunk = chunks_[at];
    const auto middle = chunk.begin() + Offset(chunk.size() / 2);
    std::vector<T> half(std::make_move_iterator(middle), std::make_move_iterator(chunk.end()));
    chunk.erase(middle, chunk.end());
    chunks_.insert(chunks_.begin() + Offset(at + 1), std::move(half));
  }

  std::vector<std::vector<T>> chunks_;
  std::size_t size_ = 0;
  mutable Place last_;
};

}  // namespace velmar::controls
