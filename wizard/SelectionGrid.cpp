#include "wizard/SelectionGrid.h"

#include <array>

#include "templates/TemplateContent.h"

namespace velmar::wizard {

namespace {

struct Head {
  const char* text;
  long width;  // in twips
};

constexpr std::array kHeads = {Head{"Tabla", 1500}, Head{"Campo", 2000}, Head{"Filtro del Campo", 4250}};
constexpr long kLeftCentred = 1;

}  // namespace

void PrepararRejilla(controls::Grid& grid) {
  grid.Cols(static_cast<long>(kHeads.size()));
  // The head can only be fixed while another row stands below it.
  grid.Rows(2);
  grid.FixedRows(1);
  for (std::size_t i = 0; i < kHeads.size(); ++i) {
    const long column = static_cast<long>(i);
    grid.TextMatrix(0, column, kHeads[i].text);
    grid.ColWidth(column, kHeads[i].width);
    grid.ColAlignment(column, kLeftCentred);
  }
  grid.Rows(1);
}

bool HasFieldRow(const controls::Grid& grid) {
  return grid.RowSel() != 0;
}

GridField ReadField(const controls::Grid& grid, long row) {
  return {grid.TextMatrix(row, kNodeColumn), grid.TextMatrix(row, kLiteralColumn),
          grid.TextMatrix(row, kFilterColumn), grid.RowData(row)};
}

void InsertField(controls::Grid& grid, const GridField& field, long row) {
  // Cell by cell, since a tab that was pasted into a filter would part it in AddItem.
  grid.AddItem("", row);
  grid.TextMatrix(row, kNodeColumn, field.node);
  grid.TextMatrix(row, kLiteralColumn, field.literal);
  grid.TextMatrix(row, kFilterColumn, field.filter);
  grid.RowData(row, field.idCampo);
}

std::string OrderText(const controls::Grid& grid, long row) {
  return templates::SortText(grid.TextMatrix(row, kNodeColumn), grid.TextMatrix(row, kLiteralColumn));
}

}  // namespace velmar::wizard
