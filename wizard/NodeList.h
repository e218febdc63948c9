#pragma once

#include "catalogue/Collection.h"
#include "catalogue/NodeSink.h"
#include "catalogue/cCampos.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"

namespace velmar::wizard {

/// Fills the node list of the window, which is painted once at the end.
class NodeList final : public NodeSink {
 public:
  explicit NodeList(controls::ComboBox& cboExportar) : cboExportar_(cboExportar) {}

  void BeginNodes() override;
  void AddNode(const std::string& literalTabla, std::int16_t idTabla) override;
  void EndNodes() noexcept override;

 private:
  controls::ComboBox& cboExportar_;
};

/// Fills the list of available fields with those of the chosen node that do not stand in the grid. Without a
/// node the list stays as it is.
void fillCamposDisponibles(const controls::ComboBox& cboExportar, const Collection<cCampos>& mcolCampos,
                           const controls::Grid& msgSeleccionados, controls::ListBox& lstDisponibles);

}  // namespace velmar::wizard
