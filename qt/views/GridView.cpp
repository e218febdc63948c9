#include "qt/views/GridView.h"

#include <QContextMenuEvent>
#include <QFontInfo>
#include <QHeaderView>
#include <QItemSelection>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "qt/views/RowDelegate.h"

namespace velmar::qt {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr qreal kUsualPoints = 9;
// How much wider than the given widths the grid likes to be.
constexpr qreal kComfort = 1.4;
constexpr int kFewestRows = 3;
constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;

// Codes of the keys held while a button is released.
int ShiftCode(Qt::KeyboardModifiers modifiers) {
  return ((modifiers & Qt::ShiftModifier) != 0 ? 1 : 0) + ((modifiers & Qt::ControlModifier) != 0 ? 2 : 0) +
         ((modifiers & Qt::AltModifier) != 0 ? 4 : 0);
}

}  // namespace

GridView::GridView(controls::Grid& grid, UserEvents events, QWidget* parent)
    : QTableView(parent), ControlLink(grid, *this, std::move(events)), grid_(grid), model_(grid) {
  setModel(&model_);
  setItemDelegate(new RowDelegate(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ContiguousSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setStretchLastSection(true);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
    // The last one only follows the others.
    if (sizing_ || column + 1 >= model_.columnCount()) return;
    drawn_ = true;
    SizeLastColumn();
  });
  horizontalHeader()->viewport()->installEventFilter(this);
  SizeRows();
  SizeColumns();
  MarkStale();
}

void GridView::PreferredRows(int rows) {
  rows_ = rows;
  updateGeometry();
}

QSize GridView::sizeHint() const {
  const int around = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
  return {around + qRound(kComfort * GivenWidth() * PixelsPerTwip()),
          2 * frameWidth() + horizontalHeader()->sizeHint().height() +
              rows_ * verticalHeader()->defaultSectionSize()};
}

QSize GridView::minimumSizeHint() const {
  return {sizeHint().width() / 2, 2 * frameWidth() + horizontalHeader()->sizeHint().height() +
                                      qMin(rows_, kFewestRows) * verticalHeader()->defaultSectionSize()};
}

void GridView::mousePressEvent(QMouseEvent* event) {
  TakeOver();
  if (event->button() != Qt::LeftButton) return;
  QTableView::mousePressEvent(event);
  const QModelIndex at = indexAt(event->position().toPoint());
  if (at.isValid() && (event->modifiers() & Qt::ShiftModifier) == 0) {
    Act([&] { grid_.UserClick(at.row() + grid_.FixedRows()); });
    MarkStale();
  } else {
    Report();
  }
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
  if ((event->buttons() & Qt::LeftButton) == 0) return;
  TakeOver();
  QTableView::mouseMoveEvent(event);
  Report();
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  TakeOver();
  if (event->button() == Qt::LeftButton) {
    QTableView::mouseReleaseEvent(event);
    Report();
    ReleaseButton(kLeftButton, event->modifiers(), event->globalPosition());
  } else if (event->button() == Qt::RightButton) {
    ReleaseButton(kRightButton, event->modifiers(), event->globalPosition());
  }
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  TakeOver();
  if (event->button() == Qt::LeftButton) Act([this] { grid_.UserDoubleClick(); });
}

// The menu key stands for the right button; the button itself has its release.
void GridView::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() != QContextMenuEvent::Keyboard) return;
  TakeOver();
  ReleaseButton(kRightButton, Qt::NoModifier, event->globalPos());
}

// The head row is a widget of its own, and of the grid all the same.
bool GridView::eventFilter(QObject* receiver, QEvent* event) {
  if (receiver == horizontalHeader()->viewport() && event->type() == QEvent::MouseButtonRelease) {
    const auto& release = static_cast<const QMouseEvent&>(*event);
    if (release.button() == Qt::RightButton) {
      TakeOver();
      ReleaseButton(kRightButton, release.modifiers(), release.globalPosition());
    }
  }
  return QTableView::eventFilter(receiver, event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  TakeOver();
  QTableView::keyPressEvent(event);
  Report();
}

void GridView::paintEvent(QPaintEvent* event) {
  TakeOver();
  QTableView::paintEvent(event);
}

void GridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) SizeRows();
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  if (!drawn_) SizeColumns();
}

void GridView::ReleaseButton(int button, Qt::KeyboardModifiers modifiers, QPointF at) {
  const qreal twips = static_cast<qreal>(kTwipsPerInch) / logicalDpiX();
  const QPointF inside = mapFromGlobal(at) * twips;
  Act([&] {
    grid_.UserMouseUp(button, ShiftCode(modifiers), static_cast<float>(inside.x()),
                      static_cast<float>(inside.y()));
  });
}

void GridView::SizeRows() {
  verticalHeader()->setDefaultSectionSize(RowDelegate::RowHeight(*this));
  horizontalHeader()->setMinimumHeight(RowDelegate::RowHeight(*this));
}

// The widths are meant for the usual font; a larger one needs more.
qreal GridView::PixelsPerTwip() const {
  const qreal larger = qMax(1.0, QFontInfo(font()).pointSizeF() / kUsualPoints);
  return larger * logicalDpiX() / kTwipsPerInch;
}

qreal GridView::GivenWidth() const {
  qreal width = 0;
  for (long column = 0; Alive() && column < grid_.Cols(); ++column)
    width += static_cast<qreal>(qMax(grid_.ColWidth(column), 0L));
  return width;
}

int GridView::LeastWidth(int column) const {
  return qRound(static_cast<qreal>(qMax(grid_.ColWidth(column), 0L)) * PixelsPerTwip());
}

// The columns share the room that is left in the proportions of their widths, until the user draws one. What
// the last one has beyond its own width goes to those whose texts would be cut.
void GridView::SizeColumns() {
  const qreal given = GivenWidth();
  if (given <= 0) return;
  const qreal pixels = qMax(PixelsPerTwip(), viewport()->width() / given);
  const int last = model_.columnCount() - 1;
  int spare = qRound(static_cast<qreal>(grid_.ColWidth(last)) * pixels) - LeastWidth(last);
  sizing_ = true;
  for (int column = 0; column <= last; ++column) {
    const long twips = grid_.ColWidth(column);
    if (twips < 0) continue;
    const int share = qRound(static_cast<qreal>(twips) * pixels);
    const int more = column < last ? qBound(0, sizeHintForColumn(column) - share, spare) : 0;
    spare -= more;
    setColumnWidth(column, column < last ? share + more : LeastWidth(last) + spare);
  }
  sizing_ = false;
  updateGeometry();
}

// What the user draws comes out of the last column, down to its head.
void GridView::SizeLastColumn() {
  const int last = model_.columnCount() - 1;
  int room = viewport()->width();
  for (int column = 0; column < last; ++column) room -= columnWidth(column);
  sizing_ = true;
  setColumnWidth(last, qMax(room, horizontalHeader()->sectionSizeHint(last)));
  sizing_ = false;
}

void GridView::Show(controls::Property what) {
  if (what == controls::Property::kSelection) MarkStale();
  if (what == controls::Property::kColumns) SizeColumns();
}

void GridView::Inserted(controls::Control& /*control*/) {
  MarkStale();
}

void GridView::Removed(controls::Control& /*control*/) {
  MarkStale();
}

void GridView::WasReset(controls::Control& /*control*/) {
  MarkStale();
}

void GridView::ScrollRequested(controls::Control& /*control*/, std::size_t row) {
  top_ = ModelRow(static_cast<long>(row));
  MarkStale();
}

void GridView::MarkStale() {
  if (stale_) return;
  stale_ = true;
  QMetaObject::invokeMethod(
      this, [this] { TakeOver(); }, Qt::QueuedConnection);
}

void GridView::TakeOver() {
  if (!stale_ || !Alive()) return;
  stale_ = false;
  const int first = ModelRow(grid_.Row());
  const int last = ModelRow(grid_.RowSel());
  if (model_.rowCount() > 0 && model_.columnCount() > 0 && first >= 0) {
    const QItemSelection wanted(model_.index(first, 0), model_.index(last, model_.columnCount() - 1));
    if (selectionModel()->selection() != wanted) {
      selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
      selectionModel()->setCurrentIndex(model_.index(first, 0), QItemSelectionModel::NoUpdate);
    }
  }
  executeDelayedItemsLayout();
  if (!drawn_) SizeColumns();
  if (top_) scrollTo(model_.index(std::exchange(top_, {}).value(), 0), PositionAtTop);
}

void GridView::Report() {
  if (!Alive()) return;
  const QModelIndexList rows = selectionModel()->selectedRows();
  MarkStale();
  if (rows.isEmpty()) return;
  const auto [first, last] = std::minmax_element(rows.begin(), rows.end());
  const long from = first->row() + grid_.FixedRows();
  const long to = last->row() + grid_.FixedRows();
  if (from != grid_.Row() || to != grid_.RowSel()) {
    Act([&] { grid_.UserSelect(from, to); });
  }
}

}  // namespace velmar::qt
