#pragma once

#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/OptionButton.h"
#include "query/Selection.h"

namespace velmar::wizard {

/// The selection that the controls of the wizard hold: the field rows of the grid, the sort list and the kind
/// of relation, complete if that option is chosen.
Selection ReadSelection(const controls::Grid& msgSeleccionados, const controls::ListBox& lstOrden,
                        const controls::OptionButton& optCompleta);

}  // namespace velmar::wizard
