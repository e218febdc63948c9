#pragma once

#include "host/interfaces/UserMessages.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "wizard/OrderEditor.h"

namespace velmar::wizard {

/// Moves fields between the list of available fields and the grid, and changes the order of the grid's rows,
/// which is the order of the export's columns. A field stands in one of the two, never in both and never
/// twice in the grid; one that leaves the grid leaves the sort order too. Works on the controls that it is
/// handed, which must outlive it.
class FieldSelection {
 public:
  FieldSelection(const controls::ComboBox& cboExportar, controls::ListBox& lstDisponibles,
                 controls::Grid& msgSeleccionados, OrderEditor& order, const UserMessages& messages);

  /// The transfer buttons: 0 adds the marked fields, 1 all of the list, 2 takes out the selected rows, 3 all.
  void cmdAgregarQuitar_Click(int index);
  /// The arrows: 0 moves the current row up, 1 down.
  void cmdCampos_Click(int index);
  void lstDisponibles_DblClick();
  void msgSeleccionados_DblClick();

 private:
  void AddMarked();
  void AddAll();
  void TakeSelected();
  void TakeAll();
  void AgregarCamposARejilla();
  void QuitarDisponiblesSeleccionados();
  void DevolverCamposDeRejilla();

  const controls::ComboBox& cboExportar_;
  controls::ListBox& lstDisponibles_;
  controls::Grid& msgSeleccionados_;
  OrderEditor& order_;
  const UserMessages& messages_;
};

}  // namespace velmar::wizard
