#pragma once

#include <cstddef>

#include "platform/ado/Cursor.h"

namespace ADODB {

/// A cursor whose number of rows is known.
class CountedCursor : public Cursor {
 public:
  using Cursor::Cursor;
  bool Eof() const override { return position_ >= count_; }
  bool Bof() const override { return count_ == 0; }
  void MoveNext() override;
  void MoveFirst() override;
  long RecordCount() const override { return static_cast<long>(count_); }

 protected:
  std::size_t Position() const noexcept { return position_; }
  void Count(std::size_t rows) noexcept { count_ = rows; }

 private:
  std::size_t count_ = 0;
  std::size_t position_ = 0;
};

}  // namespace ADODB
