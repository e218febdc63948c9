#include "qt/views/ComboBoxView.h"

#include <QWheelEvent>
#include <utility>

namespace velmar::qt {

ComboBoxView::ComboBoxView(controls::ComboBox& box, UserEvents events, QWidget* parent)
    : QComboBox(parent), ControlLink(box, *this, std::move(events)), box_(box), model_(box) {
  setModel(&model_);
  // As it comes, it takes the focus by the wheel.
  setFocusPolicy(Qt::StrongFocus);
  // The widget chooses for itself when rows come and go; connected behind it, this has the last word.
  const auto follow = [this] { ComboBoxView::Show(controls::Property::kSelection); };
  connect(&model_, &QAbstractItemModel::rowsInserted, this, follow);
  connect(&model_, &QAbstractItemModel::rowsRemoved, this, follow);
  connect(&model_, &QAbstractItemModel::modelReset, this, follow);
  connect(this, &QComboBox::activated, this, [this](int index) {
    Act([&] { box_.UserChoose(index); });
    ComboBoxView::Show(controls::Property::kSelection);
  });
  follow();
}

void ComboBoxView::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

void ComboBoxView::Show(controls::Property what) {
  if (what == controls::Property::kSelection && Alive()) setCurrentIndex(static_cast<int>(box_.ListIndex()));
}

}  // namespace velmar::qt
