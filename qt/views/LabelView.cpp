#include "qt/views/LabelView.h"

#include <utility>

namespace velmar::qt {

LabelView::LabelView(controls::Label& label, UserEvents events, QWidget* parent)
    : QLabel(parent), ControlLink(label, *this, std::move(events)), label_(label) {
  setTextFormat(Qt::PlainText);
  LabelView::Show(controls::Property::kCaption);
}

void LabelView::Show(controls::Property what) {
  if (what == controls::Property::kCaption) setText(QString::fromStdString(label_.Caption()));
}

}  // namespace velmar::qt
