#pragma once

#include <string>

#include "host/interfaces/UserMessages.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"

namespace velmar::wizard {

/// The sort order of an export, in the list `lstOrden`: first item first. An item is known by its text (see
/// OrderText), without regard to case, and carries the field's number in ItemData. Works on the controls that
/// it is handed, which must outlive it.
class OrderEditor {
 public:
  OrderEditor(controls::ListBox& lstOrden, const controls::Grid& msgSeleccionados,
              const UserMessages& messages);

  /// Appends the item; one that is there already keeps its place.
  void AgregarAOrden(const std::string& text, long idCampo);
  /// Takes the item out, if it is there.
  void EliminarDeOrden(const std::string& text);

  /// The field of the grid's current row enters or leaves the list. Nothing happens without a field row.
  void mnuAgregarOrden_Click();
  void mnuEliminarOrden_Click();
  /// The buttons beside the list: 0 removes the chosen item, 1 moves it up, 2 down.
  void cmdOrden_Click(int index);

 private:
  long Find(const std::string& text) const;

  controls::ListBox& lstOrden_;
  const controls::Grid& msgSeleccionados_;
  const UserMessages& messages_;
};

}  // namespace velmar::wizard
