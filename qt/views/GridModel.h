#pragma once

#include <QAbstractTableModel>

#include "platform/controls/ControlObserver.h"
#include "platform/controls/Grid.h"

namespace velmar::qt {

/// The data rows of a grid as an item model, its head rows as the horizontal heads. Reads them from the
/// control, and passes its paired notices on. The grid is borrowed; when it ends first, the model is empty.
class GridModel : public QAbstractTableModel, private controls::ControlObserver {
 public:
  explicit GridModel(controls::Grid& grid);
  ~GridModel() override;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void AboutToInsert(controls::Control& control, std::size_t first, std::size_t count) override;
  void Inserted(controls::Control& control) override;
  void AboutToRemove(controls::Control& control, std::size_t first, std::size_t count) override;
  void Removed(controls::Control& control) override;
  void AboutToReset(controls::Control& control) override;
  void WasReset(controls::Control& control) override;
  void RowChanged(controls::Control& control, std::size_t row) override;
  void Destroyed(controls::Control& control) override;

  int ModelRow(std::size_t gridRow) const {
    return static_cast<int>(gridRow) - static_cast<int>(grid_->FixedRows());
  }

  controls::Grid* grid_;
};

}  // namespace velmar::qt
