#pragma once

#include <string>

#include "platform/controls/Grid.h"

namespace velmar::wizard {

// Columns of the grid `msgSeleccionados`; its RowData is the field's number in the catalogue.
inline constexpr long kNodeColumn = 0;
inline constexpr long kLiteralColumn = 1;
inline constexpr long kFilterColumn = 2;

/// One field as a row of the grid holds it.
struct GridField {
  std::string node;
  std::string literal;
  std::string filter;
  long idCampo = 0;
};

/// Sets up the columns and writes the heads. No field row stays.
void PrepararRejilla(controls::Grid& grid);

/// True if a field row is selected, which is so whenever there is one.
bool HasFieldRow(const controls::Grid& grid);

GridField ReadField(const controls::Grid& grid, long row);

/// Puts the field in before `row`, or at the end if it is the number of rows.
void InsertField(controls::Grid& grid, const GridField& field, long row);

/// What stands for the field of a row in the sort list: the five characters of the node's prefix, one blank
/// and the literal.
std::string OrderText(const controls::Grid& grid, long row);

}  // namespace velmar::wizard
