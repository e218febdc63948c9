#pragma once

#include <algorithm>
#include <optional>
#include <set>

#include "platform/error/RuntimeError.h"

namespace velmar::exporting {

/// Which blocks of a run could not be exported, how many rows that makes, and why the first of them failed.
class BlockLedger {
 public:
  /// Rows in all, and rows of a full block; only the last block holds fewer.
  BlockLedger(long rows, long blockRows) : rows_(rows), blockRows_(blockRows) {}

  long Rows() const noexcept { return rows_; }
  /// Blocks count from 0.
  long RowsOf(int block) const { return std::clamp(rows_ - block * blockRows_, 0L, blockRows_); }
  /// A block that fails again stays lost once, with its first reason.
  void Lose(int block, const RuntimeError& reason) {
    if (lost_.empty()) reason_ = reason;
    lost_.insert(block);
  }
  bool IsLost(int block) const { return lost_.count(block) != 0; }
  bool Complete() const noexcept { return lost_.empty(); }
  long LostRows() const {
    long rows = 0;
    for (const int block : lost_) rows += RowsOf(block);
    return rows;
  }
  /// Of the block that was lost first; only if one was.
  const RuntimeError& Reason() const { return reason_.value(); }

 private:
  long rows_;
  long blockRows_;
  std::set<int> lost_;
  std::optional<RuntimeError> reason_;
};

}  // namespace velmar::exporting
