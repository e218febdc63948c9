#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/ChunkedSequence.h"
#include "platform/controls/Control.h"

namespace velmar::controls {

/// A table of texts with head rows, which do not scroll and cannot be selected, and a number for each row.
/// Rows and columns count from 0, the head rows included. An index outside the table raises
/// kSubscriptOutOfRange, a value that a property cannot have kInvalidPropertyValue.
///
/// The selection reaches from Row and Col, the current cell, to RowSel and ColSel. It is kept in order: Row
/// is at most RowSel and Col at most ColSel, whichever way it was drawn. While there are data rows, it stands
/// on them; with none, Row and RowSel are 0.
class Grid : public Control {
 public:
  using Control::Control;

  long Rows() const noexcept { return static_cast<long>(rows_.size()); }
  /// Adds empty rows at the end, or drops the last ones; at least FixedRows.
  void Rows(long rows);
  long Cols() const noexcept { return cols_; }
  /// Adds empty columns on the right, or drops the last ones; at least 1.
  void Cols(long cols);
  long FixedRows() const noexcept { return fixedRows_; }
  /// There must be more rows than that.
  void FixedRows(long rows);

  const std::string& TextMatrix(long row, long col) const;
  void TextMatrix(long row, long col, std::string text);
  /// A number that goes with the row; 0 at first.
  long RowData(long row) const;
  void RowData(long row, long data);
  /// In twips, -1 for a width that the view chooses.
  long ColWidth(long col) const;
  void ColWidth(long col, long twips);
  /// A code of the platform; 1 is left and centred vertically, 9 follows the content.
  long ColAlignment(long col) const;
  void ColAlignment(long col, long alignment);

  /// Adds a row at the end or before `row`, a data row. Tabs separate the columns in `text`; further ones
  /// than there are columns are dropped. The selection stays on the rows it was on.
  void AddItem(std::string_view text);
  void AddItem(std::string_view text, long row);
  /// Takes a data row out. Raises kInvalidProcedureCall for the only one, which goes through Rows. If the row
  /// was selected, the selection becomes the one row that stands at Row afterwards.
  void RemoveItem(long row);

  long Row() const noexcept { return row_; }
  /// Moves the current cell, and the selection becomes this cell's row and column alone.
  void Row(long row);
  long Col() const noexcept { return col_; }
  void Col(long col);
  long RowSel() const noexcept { return rowSel_; }
  /// Extends the selection from Row to here.
  void RowSel(long row);
  long ColSel() const noexcept { return colSel_; }
  void ColSel(long col);
  /// The first data row that shows.
  long TopRow() const noexcept { return topRow_; }
  void TopRow(long row);

  /// The user clicks a data row: it alone is selected, over all columns.
  bool UserClick(long row);
  /// The user draws the selection from one data row to another, either way.
  bool UserSelect(long from, long to);
  /// The user double-clicks anywhere in the grid.
  bool UserDoubleClick();
  /// A mouse button is released: 1 the left, 2 the right. Coordinates in twips. Does not move the current
  /// cell.
  bool UserMouseUp(int button, int shift, float x, float y);

  std::function<void()> Click;
  std::function<void()> DblClick;
  std::function<void(int button, int shift, float x, float y)> MouseUp;

 private:
  struct RowContent {
    std::vector<std::string> cells;
    long data = 0;
  };
  struct Column {
    long width = -1;
    long alignment = 9;
  };

  const RowContent& At(long row) const;
  RowContent& At(long row);
  void CheckColumn(long col) const;
  void CheckDataRow(const char* property, long row) const;
  bool IsDataRow(long row) const noexcept { return row >= fixedRows_ && row < Rows(); }
  void Insert(long row, RowContent content);
  void Select(long row, long rowSel);
  void KeepSelectionOnData();
  [[noreturn]] void Refuse(long number, const std::string& what) const;

  ChunkedSequence<RowContent> rows_;
  std::vector<Column> columns_;
  long cols_ = 0;
  long fixedRows_ = 0;
  long row_ = 0;
  long rowSel_ = 0;
  long col_ = 0;
  long colSel_ = 0;
  long topRow_ = 0;
};

}  // namespace velmar::controls
