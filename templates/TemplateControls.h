#pragma once

#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "templates/TemplateContent.h"

namespace velmar::templates {

/// The controls of the wizard that a template is taken from and put into: the grid `msgSeleccionados`, with
/// the rows of GridRow.h below one head row, and the sort list `lstOrden`. They are borrowed.
class TemplateControls {
 public:
  TemplateControls(controls::Grid& msgSeleccionados, controls::ListBox& lstOrden)
      : msgSeleccionados_(msgSeleccionados), lstOrden_(lstOrden) {}

  TemplateContent Read() const;
  /// No field row and no item of the sort list stays.
  void Clear();
  /// Puts the content behind what is there.
  void Append(const TemplateContent& content);

 private:
  controls::Grid& msgSeleccionados_;
  controls::ListBox& lstOrden_;
};

}  // namespace velmar::templates
