#include "qt/windows/ExportWindow.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "qt/views/ComboBoxView.h"
#include "qt/views/CommandButtonView.h"
#include "qt/views/FrameView.h"
#include "qt/views/GridView.h"
#include "qt/views/LabelView.h"
#include "qt/views/ListView.h"
#include "qt/views/OptionButtonView.h"
#include "qt/views/ProgressBarView.h"
#include "qt/views/TextAreaView.h"
#include "qt/windows/Arrangement.h"
#include "wizard/frmExportacion.h"

namespace velmar::qt {

namespace {

using Controls = wizard::ExportControls;

// Rows and characters that fit without scrolling where the screen has room.
constexpr int kFieldRows = 10;
constexpr int kFieldCharacters = 34;
constexpr int kGridRows = 11;
constexpr int kOrderRows = 7;
constexpr int kOrderCharacters = 32;
constexpr int kOperatorRows = 9;

}  // namespace

ExportWindow::ExportWindow(wizard::frmExportacion& form, QWidget* parent)
    : FormWindow(form, parent), exportacion_(form), views_(*this) {
  auto* lower = new QHBoxLayout;
  lower->addWidget(OrderFrame(), 2);
  lower->addWidget(FilterFrame(), 3);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(FieldBand(), 1);
  layout->addLayout(Relation());
  layout->addLayout(lower);
  layout->addLayout(BottomRow());
  views_.OrderByTab();
}

QLayout* ExportWindow::FieldBand() {
  auto* node = views_.Make<LabelView>(exportacion_.lblExportar(0));
  auto* combo = views_.Make<ComboBoxView>(exportacion_.cboExportar);
  auto* available = views_.Make<LabelView>(exportacion_.lblExportar(1));
  auto* list = views_.Make<ListView>(exportacion_.lstDisponibles);
  auto* grid = views_.Make<GridView>(exportacion_.msgSeleccionados);
  node->setBuddy(combo);
  available->setBuddy(list);
  list->PreferredSize(kFieldRows, kFieldCharacters);
  grid->PreferredRows(kGridRows);
  // The list of a node is as wide as the list below it, however long a node's name is.
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

  auto* band = new QGridLayout;
  band->addWidget(node, 0, 0, Qt::AlignBottom);
  band->addWidget(combo, 1, 0);
  band->addWidget(available, 2, 0, Qt::AlignBottom);
  band->addWidget(list, 3, 0);
  band->addLayout(TransferButtons(), 1, 1, 3, 1);
  band->addLayout(SelectionHead(), 0, 2);
  band->addWidget(grid, 1, 2, 3, 1);
  band->addLayout(MoveButtons(), 1, 3, 3, 1);
  band->setColumnStretch(0, 2);
  band->setColumnStretch(2, 5);
  band->setRowStretch(3, 1);
  return band;
}

QLayout* ExportWindow::TransferButtons() {
  auto* column = new QVBoxLayout;
  column->addStretch();
  exportacion_.cmdAgregarQuitar.ForEach([&](controls::CommandButton& button, int index) {
    if (index == Controls::kTake) column->addSpacing(column->spacing());
    auto* view = views_.Make<CommandButtonView>(button);
    view->setFixedWidth(view->fontMetrics().averageCharWidth() * 8);
    column->addWidget(view);
  });
  column->addStretch();
  return column;
}

QLayout* ExportWindow::SelectionHead() {
  auto* row = new QHBoxLayout;
  row->addWidget(views_.Make<LabelView>(exportacion_.lblExportar(2)), 1, Qt::AlignBottom);
  auto* values = views_.Make<CommandButtonView>(exportacion_.cmdVerDatos);
  EqualWidths({values});
  row->addWidget(values);
  return row;
}

QLayout* ExportWindow::MoveButtons() {
  auto* column = new QVBoxLayout;
  column->addStretch();
  column->addWidget(
      views_.Make<CommandButtonView>(exportacion_.cmdCampos(Controls::kFieldUp), nullptr, Glyph::kUp));
  column->addWidget(
      views_.Make<CommandButtonView>(exportacion_.cmdCampos(Controls::kFieldDown), nullptr, Glyph::kDown));
  column->addStretch();
  return column;
}

QLayout* ExportWindow::Relation() {
  auto* row = new QHBoxLayout;
  exportacion_.optExportar.ForEach([&](controls::OptionButton& option, int) {
    row->addWidget(views_.Make<OptionButtonView>(option));
    row->addSpacing(row->spacing());
  });
  row->addStretch();
  return row;
}

QWidget* ExportWindow::OrderFrame() {
  auto* frame = views_.Make<FrameView>(exportacion_.fraExportar(0));
  auto* list = views_.Make<ListView>(exportacion_.lstOrden, frame);
  list->PreferredSize(kOrderRows, kOrderCharacters);

  auto* column = new QVBoxLayout;
  const auto add = [&](int index, Glyph glyph) {
    column->addWidget(views_.Make<CommandButtonView>(exportacion_.cmdOrden(index), frame, glyph));
  };
  column->addStretch();
  add(Controls::kOrderRemove, Glyph::kCross);
  add(Controls::kOrderUp, Glyph::kUp);
  add(Controls::kOrderDown, Glyph::kDown);
  column->addStretch();

  auto* row = new QHBoxLayout(frame);
  row->addWidget(list, 1);
  row->addLayout(column);
  return frame;
}

QWidget* ExportWindow::FilterFrame() {
  auto* frame = views_.Make<FrameView>(exportacion_.fraExportar(1));
  auto* operators = views_.Make<ListView>(exportacion_.lstOperadores, frame);
  operators->PreferredSize(kOperatorRows, 0);
  auto* filter = views_.Make<TextAreaView>(exportacion_.txtFiltro, frame);
  const auto button = [&](int index) {
    return views_.Make<CommandButtonView>(exportacion_.cmdFiltro(index), frame);
  };
  auto* assign = button(Controls::kFilterAssign);
  auto* clear = button(Controls::kFilterClear);
  auto* remove = button(Controls::kFilterRemove);
  EqualWidths({assign, clear, remove});

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(assign);
  buttons->addWidget(clear);
  buttons->addWidget(remove);
  auto* editor = new QVBoxLayout;
  editor->addWidget(filter, 1);
  editor->addLayout(buttons);
  auto* row = new QHBoxLayout(frame);
  row->addWidget(operators);
  row->addLayout(editor, 1);
  return frame;
}

QLayout* ExportWindow::BottomRow() {
  const auto button = [&](int index) {
    return views_.Make<CommandButtonView>(exportacion_.cmdExportar(index));
  };
  auto* help = button(Controls::kHelp);
  auto* load = button(Controls::kLoadTemplate);
  auto* save = button(Controls::kSaveTemplate);
  auto* run = button(Controls::kExport);
  auto* leave = button(Controls::kLeave);
  EqualWidths({help, load, save, run, leave});
  auto* progress = views_.Make<ProgressBarView>(exportacion_.prgExportar);
  KeepPlace(*progress);

  auto* row = new QHBoxLayout;
  row->addWidget(help);
  row->addWidget(load);
  row->addWidget(save);
  row->addWidget(progress, 1);
  row->addWidget(run);
  row->addWidget(leave);
  return row;
}

}  // namespace velmar::qt
