#include "qt/views/ListView.h"

#include <QFontMetrics>
#include <QItemSelection>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <iterator>
#include <utility>

#include "qt/views/RowDelegate.h"

namespace velmar::qt {

namespace {

constexpr int kFewestRows = 3;
constexpr int kFewestCharacters = 12;

bool IsMove(const QKeyEvent& event) {
  constexpr int kMoves[] = {Qt::Key_Up,   Qt::Key_Down,  Qt::Key_PageUp, Qt::Key_PageDown,
                            Qt::Key_Left, Qt::Key_Right, Qt::Key_Home,   Qt::Key_End};
  return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier &&
         std::find(std::begin(kMoves), std::end(kMoves), event.key()) != std::end(kMoves);
}

}  // namespace

ListView::ListView(controls::ListBox& list, UserEvents events, QWidget* parent)
    : QListView(parent), ControlLink(list, *this, std::move(events)), list_(list), model_(list) {
  setModel(&model_);
  setItemDelegate(new RowDelegate(this));
  setSelectionMode(Many() ? ExtendedSelection : SingleSelection);
  setEditTriggers(NoEditTriggers);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideRight);
  setHorizontalScrollMode(ScrollPerPixel);
  LayOutColumns();
  MarkStale();
}

void ListView::PreferredSize(int rows, int characters) {
  rows_ = rows;
  characters_ = characters;
  updateGeometry();
}

QSize ListView::sizeHint() const {
  const int frame = 2 * frameWidth();
  if (Columns() > 0) return {WidthOfColumns() + frame, rows_ * RowDelegate::RowHeight(*this) + 1 + frame};
  return {characters_ * fontMetrics().averageCharWidth() + verticalScrollBar()->sizeHint().width() + frame,
          rows_ * RowDelegate::RowHeight(*this) + 1 + frame};
}

int ListView::Columns() const {
  return Alive() ? static_cast<int>(list_.Columns()) : 0;
}

int ListView::WidthOfColumns() const {
  return Columns() * (sizeHintForColumn(0) + fontMetrics().averageCharWidth());
}

QSize ListView::minimumSizeHint() const {
  const int frame = 2 * frameWidth();
  const int characters = qMin(characters_, kFewestCharacters) * fontMetrics().averageCharWidth();
  return {(Columns() > 0 ? WidthOfColumns() : characters) + frame,
          qMin(rows_, kFewestRows) * RowDelegate::RowHeight(*this) + frame};
}

void ListView::mousePressEvent(QMouseEvent* event) {
  TakeOver();
  if (event->button() != Qt::LeftButton) return;
  QListView::mousePressEvent(event);
  Report(indexAt(event->position().toPoint()).isValid());
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
  if ((event->buttons() & Qt::LeftButton) == 0) return;
  TakeOver();
  // The view knows no end of a drawing beside its items, so one further down or up means the nearest.
  QRect inside = viewport()->rect();
  const QRect last = visualRect(model_.index(model_.rowCount() - 1));
  if (Columns() == 0 && last.isValid()) inside.setBottom(qMin(inside.bottom(), last.bottom()));
  const QPointF at = event->position();
  const QPointF held(qBound<qreal>(inside.left(), at.x(), inside.right()),
                     qBound<qreal>(inside.top(), at.y(), inside.bottom()));
  QMouseEvent move(event->type(), held, event->globalPosition(), event->button(), event->buttons(),
                   event->modifiers(), event->pointingDevice());
  QListView::mouseMoveEvent(&move);
  Report(false);
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
  TakeOver();
  if (event->button() != Qt::LeftButton) return;
  QListView::mouseReleaseEvent(event);
  Report(false);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  TakeOver();
  if (event->button() != Qt::LeftButton) return;
  const QModelIndex at = indexAt(event->position().toPoint());
  Act([&] { list_.UserDoubleClick(at.isValid() ? at.row() : -1); });
}

void ListView::keyPressEvent(QKeyEvent* event) {
  TakeOver();
  if (IsMove(*event) && !selectionModel()->hasSelection() && model_.rowCount() > 0) {
    // Where nothing is chosen, the first move chooses: else it would jump over the first item.
    const int waiting = qMax(currentIndex().row(), 0);
    const int row = event->key() == Qt::Key_End    ? model_.rowCount() - 1
                    : event->key() == Qt::Key_Home ? 0
                                                   : waiting;
    selectionModel()->setCurrentIndex(model_.index(row), QItemSelectionModel::ClearAndSelect);
  } else {
    QListView::keyPressEvent(event);
  }
  Report(false);
}

void ListView::paintEvent(QPaintEvent* event) {
  TakeOver();
  QListView::paintEvent(event);
}

void ListView::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  LayOutColumns();
}

void ListView::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) LayOutColumns();
}

// As many columns as the list says share its width, filled one after the other; it scrolls across if it must.
void ListView::LayOutColumns() {
  const int columns = Columns();
  const int height = RowDelegate::RowHeight(*this);
  const int rows = columns > 0 ? (model_.rowCount() + columns - 1) / columns : 0;
  // The bar would take room for itself even where all fits.
  const bool fits = rows * height < this->height() - 2 * frameWidth();
  setWrapping(columns > 0);
  setResizeMode(columns > 0 ? Adjust : Fixed);
  setVerticalScrollBarPolicy(columns > 0 ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  setHorizontalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  const QSize cell = columns > 0 ? QSize(viewport()->width() / columns, height) : QSize();
  if (cell != gridSize()) setGridSize(cell);
}

void ListView::Show(controls::Property what) {
  if (what == controls::Property::kSelection) MarkStale();
  if (what == controls::Property::kColumns) LayOutColumns();
}

void ListView::Inserted(controls::Control& /*control*/) {
  MarkStale();
}

void ListView::Removed(controls::Control& /*control*/) {
  MarkStale();
}

void ListView::WasReset(controls::Control& /*control*/) {
  MarkStale();
}

void ListView::ScrollRequested(controls::Control& /*control*/, std::size_t row) {
  top_ = static_cast<int>(row);
  MarkStale();
}

void ListView::MarkStale() {
  if (stale_) return;
  stale_ = true;
  QMetaObject::invokeMethod(
      this, [this] { TakeOver(); }, Qt::QueuedConnection);
}

void ListView::TakeOver() {
  if (!stale_ || !Alive()) return;
  stale_ = false;
  QItemSelection selection;
  const int count = model_.rowCount();
  for (int row = 0; list_.SelCount() > 0 && row < count; ++row) {
    if (!list_.Selected(row)) continue;
    const int first = row;
    while (row + 1 < count && list_.Selected(row + 1)) ++row;
    selection.select(model_.index(first), model_.index(row));
  }
  if (SelectedRows() != [&] {
        std::vector<long> rows;
        for (const QModelIndex& index : selection.indexes()) rows.push_back(index.row());
        return rows;
      }()) {
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  }
  const int current = static_cast<int>(list_.ListIndex());
  if (currentIndex().row() != current && current >= 0) {
    selectionModel()->setCurrentIndex(model_.index(current), QItemSelectionModel::NoUpdate);
  }
  executeDelayedItemsLayout();
  if (top_) scrollTo(model_.index(std::exchange(top_, {}).value()), PositionAtTop);
}

std::vector<long> ListView::SelectedRows() const {
  std::vector<long> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

void ListView::Report(bool clicked) {
  if (!Alive()) return;
  const std::vector<long> rows = SelectedRows();
  const long current = currentIndex().row();
  const bool same = static_cast<long>(rows.size()) == list_.SelCount() &&
                    std::all_of(rows.begin(), rows.end(), [this](long row) { return list_.Selected(row); });
  if (same && !clicked && (rows.empty() || current == list_.ListIndex())) return;
  // The user cannot choose nothing where there is one choice.
  if (Many() || !rows.empty()) {
    Act([&] { list_.UserSelectItems(rows, current); });
  }
  MarkStale();
}

}  // namespace velmar::qt
