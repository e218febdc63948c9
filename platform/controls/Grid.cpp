#include "platform/controls/Grid.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::controls {
namespace {

std::size_t Index(long index) {
  return static_cast<std::size_t>(index);
}

}  // namespace

void Grid::Rows(long rows) {
  if (rows < 0 || rows < fixedRows_) {
    Refuse(kInvalidPropertyValue, "no puede quedarse con " + std::to_string(rows) + " filas");
  }
  const long before = Rows();
  if (rows > before) {
    Notify([&](ControlObserver& o) { o.AboutToInsert(*this, Index(before), Index(rows - before)); });
    for (long row = before; row < rows; ++row) {
      rows_.Insert(Index(row), RowContent{std::vector<std::string>(Index(cols_))});
    }
    KeepSelectionOnData();
    Notify([&](ControlObserver& o) { o.Inserted(*this); });
  } else if (rows < before) {
    Notify([&](ControlObserver& o) { o.AboutToRemove(*this, Index(rows), Index(before - rows)); });
    rows_.Truncate(Index(rows));
    KeepSelectionOnData();
    Notify([&](ControlObserver& o) { o.Removed(*this); });
  }
  NotifyChanged(Property::kSelection);
}

void Grid::Cols(long cols) {
  if (cols < 1) Refuse(kInvalidPropertyValue, "no puede quedarse con " + std::to_string(cols) + " columnas");
  Notify([&](ControlObserver& o) { o.AboutToReset(*this); });
  cols_ = cols;
  columns_.resize(Index(cols));
  for (long row = 0; row < Rows(); ++row) At(row).cells.resize(Index(cols));
  col_ = std::min(col_, cols - 1);
  colSel_ = std::min(colSel_, cols - 1);
  Notify([&](ControlObserver& o) { o.WasReset(*this); });
}

void Grid::FixedRows(long rows) {
  if (rows < 0 || rows >= Rows()) {
    Refuse(kInvalidPropertyValue,
           "no puede fijar " + std::to_string(rows) + " filas: debe quedar alguna sin fijar");
  }
  Notify([&](ControlObserver& o) { o.AboutToReset(*this); });
  fixedRows_ = rows;
  KeepSelectionOnData();
  Notify([&](ControlObserver& o) { o.WasReset(*this); });
}

const std::string& Grid::TextMatrix(long row, long col) const {
  CheckColumn(col);
  return At(row).cells[Index(col)];
}

void Grid::TextMatrix(long row, long col, std::string text) {
  CheckColumn(col);
  At(row).cells[Index(col)] = std::move(text);
  Notify([&](ControlObserver& o) { o.RowChanged(*this, Index(row)); });
}

long Grid::RowData(long row) const {
  return At(row).data;
}

void Grid::RowData(long row, long data) {
  At(row).data = data;
}

long Grid::ColWidth(long col) const {
  CheckColumn(col);
  return columns_[Index(col)].width;
}

void Grid::ColWidth(long col, long twips) {
  CheckColumn(col);
  if (twips < -1) Refuse(kInvalidPropertyValue, "no admite un ancho de " + std::to_string(twips));
  columns_[Index(col)].width = twips;
  NotifyChanged(Property::kColumns);
}

long Grid::ColAlignment(long col) const {
  CheckColumn(col);
  return columns_[Index(col)].alignment;
}

void Grid::ColAlignment(long col, long alignment) {
  CheckColumn(col);
  if (alignment < 0 || alignment > 9) {
    Refuse(kInvalidPropertyValue, "no admite la alineación " + std::to_string(alignment));
  }
  columns_[Index(col)].alignment = alignment;
  NotifyChanged(Property::kColumns);
}

void Grid::AddItem(std::string_view text) {
  AddItem(text, Rows());
}

void Grid::AddItem(std::string_view text, long row) {
  if (row < fixedRows_ || row > Rows()) {
    Refuse(kSubscriptOutOfRange, "no puede insertar una fila en la posición " + std::to_string(row));
  }
  RowContent content;
  content.cells.resize(Index(cols_));
  for (std::string& cell : content.cells) {
    const std::size_t end = std::min(text.find('\t'), text.size());
    cell = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  Notify([&](ControlObserver& o) { o.AboutToInsert(*this, Index(row), 1); });
  const bool hadData = Rows() > fixedRows_;
  rows_.Insert(Index(row), std::move(content));
  if (hadData && row <= row_) ++row_;
  if (hadData && row <= rowSel_) ++rowSel_;
  KeepSelectionOnData();
  Notify([&](ControlObserver& o) { o.Inserted(*this); });
}

void Grid::RemoveItem(long row) {
  if (!IsDataRow(row)) Refuse(kSubscriptOutOfRange, "no tiene la fila de datos " + std::to_string(row));
  if (Rows() - fixedRows_ == 1) {
    Refuse(kInvalidProcedureCall, "no puede quitar su única fila de datos con RemoveItem");
  }
  Notify([&](ControlObserver& o) { o.AboutToRemove(*this, Index(row), 1); });
  rows_.Remove(Index(row));
  if (row < row_) {
    --row_;
    --rowSel_;
  } else if (row <= rowSel_) {
    rowSel_ = row_;
  }
  KeepSelectionOnData();
  Notify([&](ControlObserver& o) { o.Removed(*this); });
  NotifyChanged(Property::kSelection);
}

void Grid::Row(long row) {
  CheckDataRow("Row", row);
  colSel_ = col_;
  Select(row, row);
}

void Grid::Col(long col) {
  CheckColumn(col);
  col_ = col;
  colSel_ = col;
  Select(row_, row_);
}

void Grid::RowSel(long row) {
  CheckDataRow("RowSel", row);
  Select(std::min(row_, row), std::max(row_, row));
}

void Grid::ColSel(long col) {
  CheckColumn(col);
  const long anchor = col_;
  col_ = std::min(anchor, col);
  colSel_ = std::max(anchor, col);
  NotifyChanged(Property::kSelection);
}

void Grid::TopRow(long row) {
  CheckDataRow("TopRow", row);
  topRow_ = row;
  Notify([&](ControlObserver& o) { o.ScrollRequested(*this, Index(row)); });
}

bool Grid::UserClick(long row) {
  if (!UserSelect(row, row)) return false;
  Raise(Click);
  return true;
}

bool Grid::UserSelect(long from, long to) {
  if (!IsDataRow(from) || !IsDataRow(to) || !UserFocus()) return false;
  col_ = 0;
  colSel_ = std::max(cols_ - 1, 0L);
  Select(std::min(from, to), std::max(from, to));
  return true;
}

bool Grid::UserDoubleClick() {
  if (!UserFocus()) return false;
  Raise(DblClick);
  return true;
}

bool Grid::UserMouseUp(int button, int shift, float x, float y) {
  if (!UserFocus()) return false;
  const auto handler = MouseUp;
  if (handler) handler(button, shift, x, y);
  return true;
}

const Grid::RowContent& Grid::At(long row) const {
  if (row < 0 || row >= Rows()) Refuse(kSubscriptOutOfRange, "no tiene la fila " + std::to_string(row));
  return rows_[Index(row)];
}

Grid::RowContent& Grid::At(long row) {
  return const_cast<RowContent&>(std::as_const(*this).At(row));
}

void Grid::CheckColumn(long col) const {
  if (col < 0 || col >= cols_) Refuse(kSubscriptOutOfRange, "no tiene la columna " + std::to_string(col));
}

void Grid::CheckDataRow(const char* property, long row) const {
  if (!IsDataRow(row)) {
    Refuse(kInvalidPropertyValue, "no admite " + std::to_string(row) + " para " + property);
  }
}

void Grid::Select(long row, long rowSel) {
  row_ = row;
  rowSel_ = rowSel;
  NotifyChanged(Property::kSelection);
}

void Grid::KeepSelectionOnData() {
  if (Rows() <= fixedRows_) {
    row_ = rowSel_ = topRow_ = 0;
    return;
  }
  row_ = std::clamp(row_, fixedRows_, Rows() - 1);
  rowSel_ = std::clamp(rowSel_, row_, Rows() - 1);
  topRow_ = std::clamp(topRow_, fixedRows_, Rows() - 1);
}

void Grid::Refuse(long number, const std::string& what) const {
  throw RuntimeError(number,
                     "La rejilla \"" + Name() + "\" " + what + ": tiene " + std::to_string(Rows()) +
                         " filas (" + std::to_string(fixedRows_) + " fijas) y " + std::to_string(cols_) +
                         " columnas.",
                     Name());
}

}  // namespace velmar::controls
