#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/interfaces/modVelmarExportacion.h"
#include "platform/toolkit/MakeForm.h"
#include "templates/GridRow.h"
#include "wizard/WizardOffice.h"
#include "wizard/frmExportacion.h"

namespace velmar::testing {

/// An export that does what a test tells it.
class PlayedExport : public wizard::ExportRunner {
 public:
  void ExportarDatos() override {
    running = true;
    ++runs;
    if (during) during();
    running = false;
  }
  void tmrExportacion_Timer(int index) override { fired.push_back(index); }
  bool IsRunning() const override { return running; }
  void RequestCancel() override { cancelled = true; }

  std::function<void()> during;
  std::vector<int> fired;
  int runs = 0;
  bool running = false;
  bool cancelled = false;
};

/// A loaded wizard and the user before it.
class OpenWizard : public ::testing::Test {
 protected:
  using Controls = wizard::ExportControls;
  static constexpr const char* kCol = WizardOffice::kCol;
  static constexpr const char* kRec = WizardOffice::kRec;

  OpenWizard() {
    objHost = office.host;
    form = toolkit::MakeForm<wizard::frmExportacion>(office.toolkit, [this](wizard::frmExportacion&) {
      auto made = std::make_unique<PlayedExport>();
      runner = made.get();
      return made;
    });
    form->Load();
    office.log->Take();
    office.toolkit.ClearRecords();
  }

  void ChooseNode(const std::string& node) {
    ASSERT_TRUE(form->cboExportar.UserChoose(form->cboExportar.FindStringExact(node))) << node;
  }
  /// Brings fields of a node into the grid, in the order of the list.
  void Add(const std::string& node, const std::vector<std::string>& literals) {
    ChooseNode(node);
    std::vector<long> items;
    for (const auto& literal : literals) items.push_back(form->lstDisponibles.FindStringExact(literal));
    ASSERT_TRUE(form->lstDisponibles.UserSelectItems(items, items.back()));
    ASSERT_TRUE(form->cmdAgregarQuitar(Controls::kAdd).UserClick());
  }
  void SelectRows(long from, long to) { ASSERT_TRUE(form->msgSeleccionados.UserSelect(from, to)); }

  void ChooseMenu(const std::string& caption) {
    office.toolkit.AnswerMenu(caption);
    ASSERT_TRUE(form->msgSeleccionados.UserMouseUp(2, 0, 10, 10));
  }
  /// Appends the field of this row to the sort order.
  void Sort(long row) {
    SelectRows(row, row);
    ChooseMenu("Agregar al 'orden'");
  }

  /// "literal=number" for each item.
  static std::vector<std::string> Items(const controls::ListControl& list) {
    std::vector<std::string> items;
    for (long i = 0; i < list.ListCount(); ++i) {
      items.push_back(list.List(i) + "=" + std::to_string(list.ItemData(i)));
    }
    return items;
  }
  std::vector<std::string> Available() const { return Items(form->lstDisponibles); }
  std::vector<std::string> Order() const { return Items(form->lstOrden); }
  /// "node prefix|literal|filter=number" for each field row.
  std::vector<std::string> Grid() const {
    std::vector<std::string> rows;
    for (long row = 1; row < form->msgSeleccionados.Rows(); ++row) {
      const auto field = templates::ReadRow(form->msgSeleccionados, row);
      rows.push_back(field.tabla.substr(0, 5) + "|" + field.campo + "|" + field.filtro + "=" +
                     std::to_string(field.idCampo));
    }
    return rows;
  }

  WizardOffice office;
  std::shared_ptr<wizard::frmExportacion> form;
  PlayedExport* runner = nullptr;
};

}  // namespace velmar::testing
