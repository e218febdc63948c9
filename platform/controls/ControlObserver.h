#pragma once

#include <cstddef>

namespace velmar::controls {

class Control;

/// What of a control has changed.
enum class Property {
  kEnabled,
  kVisible,
  kCaption,
  kToolTip,
  kText,
  kCaret,
  kValue,
  kRange,
  kDefault,
  kColumns,
  kSelection,
};

/// Whoever shows a control. Notices about rows come in pairs, and nothing else happens between the two, so
/// that an item model can be kept in step. Rows of a list are its items; rows of a grid include the head row.
/// A notice must not change the control that sends it. All do nothing by default.
class ControlObserver {
 public:
  virtual ~ControlObserver() = default;

  virtual void Changed(Control& /*control*/, Property /*what*/) {}
  /// The program has given the control the focus.
  virtual void FocusRequested(Control& /*control*/) {}
  /// The control is to be painted before the program goes on.
  virtual void RefreshRequested(Control& /*control*/) {}
  /// The control is to be painted when there is time.
  virtual void RepaintRequested(Control& /*control*/) {}
  /// The row is to be the first that shows.
  virtual void ScrollRequested(Control& /*control*/, std::size_t /*row*/) {}
  /// The control is going away; it must not be used any more.
  virtual void Destroyed(Control& /*control*/) {}

  virtual void AboutToInsert(Control& /*control*/, std::size_t /*first*/, std::size_t /*count*/) {}
  virtual void Inserted(Control& /*control*/) {}
  virtual void AboutToRemove(Control& /*control*/, std::size_t /*first*/, std::size_t /*count*/) {}
  virtual void Removed(Control& /*control*/) {}
  virtual void AboutToReset(Control& /*control*/) {}
  virtual void WasReset(Control& /*control*/) {}
  virtual void RowChanged(Control& /*control*/, std::size_t /*row*/) {}
};

}  // namespace velmar::controls
