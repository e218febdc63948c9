#pragma once

#include <string>

#include "platform/controls/Grid.h"

namespace velmar::wizard {

/// Sets up the columns and writes the heads. No field row stays.
void PrepararRejilla(controls::Grid& grid);

/// True if a field row is selected, which is so whenever there is one.
bool HasFieldRow(const controls::Grid& grid);

/// What stands for the field of a row in the sort list: the five characters of the node's prefix, one blank
/// and the literal.
std::string OrderText(const controls::Grid& grid, long row);

}  // namespace velmar::wizard
