#pragma once

#include <QAbstractListModel>

#include "platform/controls/ControlObserver.h"
#include "platform/controls/ListControl.h"

namespace velmar::qt {

/// The items of a list as an item model: reads them from the control, and passes its paired notices on. The
/// list is borrowed; when it ends first, the model is empty.
class ListModel : public QAbstractListModel, private controls::ControlObserver {
 public:
  explicit ListModel(controls::ListControl& list);
  ~ListModel() override;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  void AboutToInsert(controls::Control& control, std::size_t first, std::size_t count) override;
  void Inserted(controls::Control& control) override;
  void AboutToRemove(controls::Control& control, std::size_t first, std::size_t count) override;
  void Removed(controls::Control& control) override;
  void AboutToReset(controls::Control& control) override;
  void WasReset(controls::Control& control) override;
  void RowChanged(controls::Control& control, std::size_t row) override;
  void Destroyed(controls::Control& control) override;

  controls::ListControl* list_;
};

}  // namespace velmar::qt
