#pragma once

#include "platform/controls/Control.h"

namespace velmar::exporting {

/// The numbers of the blocks that are not yet finished, kept in the Tag of a control: each number between
/// bars, "|0|1|2|"; empty text when nothing is pending.
class PendingBlocks {
 public:
  explicit PendingBlocks(controls::Control& holder) : holder_(holder) {}

  bool Empty() const { return holder_.Tag().empty(); }
  bool Holds(int block) const;
  void Add(int block);
  /// Takes this number out and no other; one that is not there is no failure.
  void Remove(int block);
  void Clear();

 private:
  controls::Control& holder_;
};

}  // namespace velmar::exporting
