#include "qt/views/GridModel.h"

#include <QStringList>

namespace velmar::qt {

namespace {

// The codes count down a column of three first: left top, left centred, left bottom, centre top and so on;
// the last follows the content, and texts stand on the left.
Qt::Alignment AlignmentOf(long code) {
  constexpr Qt::Alignment kAcross[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
  constexpr Qt::Alignment kDown[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
  if (code < 0 || code > 8) return Qt::AlignLeft | Qt::AlignVCenter;
  return kAcross[code / 3] | kDown[code % 3];
}

}  // namespace

GridModel::GridModel(controls::Grid& grid) : grid_(&grid) {
  grid.Observe(*this);
}

GridModel::~GridModel() {
  if (grid_ != nullptr) grid_->Unobserve(*this);
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return grid_ == nullptr || parent.isValid() ? 0 : static_cast<int>(grid_->Rows() - grid_->FixedRows());
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return grid_ == nullptr || parent.isValid() ? 0 : static_cast<int>(grid_->Cols());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (grid_ == nullptr || !index.isValid()) return {};
  const long row = grid_->FixedRows() + index.row();
  switch (role) {
    case Qt::DisplayRole: {
      // One line a row; the tool tip has the text as it is.
      QString text = QString::fromStdString(grid_->TextMatrix(row, index.column()));
      return text.replace("\r\n", " ").replace('\n', ' ').replace('\r', ' ');
    }
    case Qt::ToolTipRole:
      return QString::fromStdString(grid_->TextMatrix(row, index.column()));
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(AlignmentOf(grid_->ColAlignment(index.column())));
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (grid_ == nullptr || orientation != Qt::Horizontal || section >= grid_->Cols()) return {};
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(grid_->ColAlignment(section)));
  if (role != Qt::DisplayRole) return {};
  QStringList heads;
  for (long row = 0; row < grid_->FixedRows(); ++row) {
    heads.append(QString::fromStdString(grid_->TextMatrix(row, section)));
  }
  return heads.join('\n');
}

void GridModel::AboutToInsert(controls::Control& /*control*/, std::size_t first, std::size_t count) {
  beginInsertRows({}, ModelRow(first), ModelRow(first + count) - 1);
}

void GridModel::Inserted(controls::Control& /*control*/) {
  endInsertRows();
}

void GridModel::AboutToRemove(controls::Control& /*control*/, std::size_t first, std::size_t count) {
  beginRemoveRows({}, ModelRow(first), ModelRow(first + count) - 1);
}

void GridModel::Removed(controls::Control& /*control*/) {
  endRemoveRows();
}

void GridModel::AboutToReset(controls::Control& /*control*/) {
  beginResetModel();
}

void GridModel::WasReset(controls::Control& /*control*/) {
  endResetModel();
}

void GridModel::RowChanged(controls::Control& /*control*/, std::size_t row) {
  const int last = columnCount() - 1;
  if (ModelRow(row) < 0) {
    emit headerDataChanged(Qt::Horizontal, 0, last);
  } else {
    emit dataChanged(index(ModelRow(row), 0), index(ModelRow(row), last));
  }
}

void GridModel::Destroyed(controls::Control& /*control*/) {
  // Nothing of it may be read any more, not even by whoever hears that the rows go.
  grid_ = nullptr;
  beginResetModel();
  endResetModel();
}

}  // namespace velmar::qt
