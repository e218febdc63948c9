#include "wizard/SelectionGrid.h"

#include <array>

#include "templates/GridRow.h"
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

std::string OrderText(const controls::Grid& grid, long row) {
  return templates::SortText(grid.TextMatrix(row, templates::kTablaColumn),
                             grid.TextMatrix(row, templates::kCampoColumn));
}

}  // namespace velmar::wizard
