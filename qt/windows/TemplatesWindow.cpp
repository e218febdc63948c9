#include "qt/windows/TemplatesWindow.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "qt/views/CommandButtonView.h"
#include "qt/views/LabelView.h"
#include "qt/views/ListView.h"
#include "qt/views/ProgressBarView.h"
#include "qt/views/TextLineView.h"
#include "qt/windows/Arrangement.h"
#include "qt/windows/ViewMaker.h"
#include "templates/frmPlantillas.h"

namespace velmar::qt {

namespace {

using templates::frmPlantillas;

constexpr int kRows = 12;
constexpr int kCharacters = 56;

}  // namespace

TemplatesWindow::TemplatesWindow(frmPlantillas& form, QWidget* parent) : FormWindow(form, parent) {
  ViewMaker views(*this);
  auto* label = views.Make<LabelView>(form.lblPlantilla);
  auto* name = views.Make<TextLineView>(form.txtPlantilla);
  auto* list = views.Make<ListView>(form.lstPlantilla);
  auto* progress = views.Make<ProgressBarView>(form.prgPlantilla);
  auto* remove = views.Make<CommandButtonView>(form.cmdPlantilla(frmPlantillas::kDelete));
  auto* accept = views.Make<CommandButtonView>(form.cmdPlantilla(frmPlantillas::kAccept));
  auto* cancel = views.Make<CommandButtonView>(form.cmdPlantilla(frmPlantillas::kCancel));
  label->setBuddy(name);
  list->PreferredSize(kRows, kCharacters);
  KeepPlace(*progress);
  EqualWidths({remove, accept, cancel});

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(remove);
  buttons->addStretch();
  buttons->addWidget(accept);
  buttons->addWidget(cancel);

  auto* layout = new QGridLayout(this);
  layout->addWidget(label, 0, 0);
  layout->addWidget(name, 1, 0);
  layout->addWidget(list, 2, 0);
  // Across the middle of the list.
  layout->addWidget(progress, 2, 0, Qt::AlignVCenter);
  progress->raise();
  layout->addLayout(buttons, 3, 0);
  layout->setRowStretch(2, 1);
  views.OrderByTab();
}

}  // namespace velmar::qt
