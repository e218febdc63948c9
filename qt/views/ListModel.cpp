#include "qt/views/ListModel.h"

namespace velmar::qt {

ListModel::ListModel(controls::ListControl& list) : list_(&list) {
  list.Observe(*this);
}

ListModel::~ListModel() {
  if (list_ != nullptr) list_->Unobserve(*this);
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return list_ == nullptr || parent.isValid() ? 0 : static_cast<int>(list_->ListCount());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (list_ == nullptr || !index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
  return QString::fromStdString(list_->List(index.row()));
}

void ListModel::AboutToInsert(controls::Control& /*control*/, std::size_t first, std::size_t count) {
  beginInsertRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
}

void ListModel::Inserted(controls::Control& /*control*/) {
  endInsertRows();
}

void ListModel::AboutToRemove(controls::Control& /*control*/, std::size_t first, std::size_t count) {
  beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
}

void ListModel::Removed(controls::Control& /*control*/) {
  endRemoveRows();
}

void ListModel::AboutToReset(controls::Control& /*control*/) {
  beginResetModel();
}

void ListModel::WasReset(controls::Control& /*control*/) {
  endResetModel();
}

void ListModel::RowChanged(controls::Control& /*control*/, std::size_t row) {
  const QModelIndex changed = index(static_cast<int>(row));
  emit dataChanged(changed, changed);
}

void ListModel::Destroyed(controls::Control& /*control*/) {
  // Nothing of it may be read any more, not even by whoever hears that the rows go.
  list_ = nullptr;
  beginResetModel();
  endResetModel();
}

}  // namespace velmar::qt
