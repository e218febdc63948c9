#include "qt/windows/ValuesWindow.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "qt/views/CommandButtonView.h"
#include "qt/views/FrameView.h"
#include "qt/views/LabelView.h"
#include "qt/views/ListView.h"
#include "qt/views/OptionButtonView.h"
#include "qt/views/ProgressBarView.h"
#include "qt/views/TextLineView.h"
#include "qt/windows/Arrangement.h"
#include "wizard/frmDatos.h"

namespace velmar::qt {

namespace {

constexpr int kRows = 12;
constexpr int kCharacters = 56;

}  // namespace

ValuesWindow::ValuesWindow(wizard::frmDatos& form, QWidget* parent)
    : FormWindow(form, parent), datos_(form), views_(*this) {
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(Typed());
  layout->addLayout(Picked(), 1);
  layout->addLayout(Buttons());
  views_.OrderByTab();
}

QLayout* ValuesWindow::Typed() {
  auto* frame = views_.Make<FrameView>(datos_.fraDatos(wizard::frmDatos::kTyped));
  auto* label = views_.Make<LabelView>(datos_.lblDatos(wizard::frmDatos::kTyped), frame);
  auto* value = views_.Make<TextLineView>(datos_.txtDatos, frame);
  label->setBuddy(value);
  auto* column = new QVBoxLayout(frame);
  column->addWidget(label);
  column->addWidget(value);
  return Titled(*views_.Make<OptionButtonView>(datos_.optDatos(wizard::frmDatos::kTyped)), *frame);
}

QLayout* ValuesWindow::Picked() {
  auto* frame = views_.Make<FrameView>(datos_.fraDatos(wizard::frmDatos::kPicked));
  auto* label = views_.Make<LabelView>(datos_.lblDatos(wizard::frmDatos::kPicked), frame);
  auto* list = views_.Make<ListView>(datos_.lstDatos, frame);
  auto* progress = views_.Make<ProgressBarView>(datos_.prgDatos, frame);
  label->setBuddy(list);
  list->PreferredSize(kRows, kCharacters);
  KeepPlace(*label);
  KeepPlace(*list);
  KeepPlace(*progress);

  auto* column = new QGridLayout(frame);
  column->setVerticalSpacing(fontMetrics().height() / 3);
  column->addWidget(label, 0, 0);
  column->addWidget(list, 1, 0);
  // In the place of the list while it fills.
  column->addWidget(progress, 1, 0, Qt::AlignVCenter);
  return Titled(*views_.Make<OptionButtonView>(datos_.optDatos(wizard::frmDatos::kPicked)), *frame);
}

QLayout* ValuesWindow::Buttons() {
  auto* accept = views_.Make<CommandButtonView>(datos_.cmdDatos(wizard::frmDatos::kAccept));
  auto* cancel = views_.Make<CommandButtonView>(datos_.cmdDatos(wizard::frmDatos::kCancel));
  EqualWidths({accept, cancel});
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(accept);
  row->addWidget(cancel);
  return row;
}

}  // namespace velmar::qt
