#pragma once

#include <string>
#include <string_view>

#include "host/interfaces/UserMessages.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/TextBox.h"

namespace velmar::wizard {

/// Types the filter language into the box and moves filters between the box and the grid's rows. The text in
/// the box belongs to no row until it is assigned. Works on the controls that it is handed, which must
/// outlive it.
class FilterEditor {
 public:
  FilterEditor(controls::TextBox& txtFiltro, const controls::ListBox& lstOperadores,
               controls::Grid& msgSeleccionados, controls::CommandButton& cmdExportar,
               const UserMessages& messages);

  void lstOperadores_DblClick();
  /// 0 empties the box, 1 assigns its text to the current row, 2 takes the row's filter away.
  void cmdFiltro_Click(int index);
  void mnuAgregarFiltro_Click();
  void mnuEliminarFiltro_Click();
  void mnuVerFiltro_Click();
  /// Puts a value at the caret, over the selection if there is one, as it is. The caret goes to the end.
  void InsertValue(std::string_view value);
  /// While the box has the focus, Enter does not press the window's default button, nor does it make a line.
  void txtFiltro_GotFocus();
  void txtFiltro_LostFocus();
  void txtFiltro_KeyPress(int& keyAscii);

 private:
  void InsertAtCaret(std::string_view piece, long replaced = 0);
  void Assign();
  void Remove();
  /// True if the text of the box balances; warns if it does not.
  bool ValidarFiltro() const;
  /// A message about the field of the current row.
  std::string AboutField(std::string_view before, std::string_view behind) const;

  controls::TextBox& txtFiltro_;
  const controls::ListBox& lstOperadores_;
  controls::Grid& msgSeleccionados_;
  controls::CommandButton& cmdExportar_;
  const UserMessages& messages_;
};

}  // namespace velmar::wizard
