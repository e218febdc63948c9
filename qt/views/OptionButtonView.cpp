#include "qt/views/OptionButtonView.h"

#include <QKeyEvent>
#include <QList>
#include <utility>

namespace velmar::qt {

OptionButtonView::OptionButtonView(controls::OptionButton& button, UserEvents events, QWidget* parent)
    : QRadioButton(parent), ControlLink(button, *this, std::move(events)), button_(button) {
  // The control keeps the choice single, and each option is a stop of the tab key.
  setAutoExclusive(false);
  OptionButtonView::Show(controls::Property::kCaption);
  OptionButtonView::Show(controls::Property::kValue);
  connect(this, &QRadioButton::clicked, this, [this] { Choose(); });
}

void OptionButtonView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      return ChooseBeside(-1);
    case Qt::Key_Down:
    case Qt::Key_Right:
      return ChooseBeside(1);
    default:
      QRadioButton::keyPressEvent(event);
  }
}

void OptionButtonView::ChooseBeside(int step) {
  QList<OptionButtonView*> options;
  for (QObject* child : parentWidget()->children()) {
    auto* option = dynamic_cast<OptionButtonView*>(child);
    if (option != nullptr && option->isEnabled() && option->isVisible()) options.append(option);
  }
  const auto count = options.size();
  options[(options.indexOf(this) + step + count) % count]->Choose();
}

void OptionButtonView::Choose() {
  setFocus(Qt::ShortcutFocusReason);
  Act([this] { button_.UserClick(); });
}

void OptionButtonView::Show(controls::Property what) {
  if (what == controls::Property::kCaption) setText(QString::fromStdString(button_.Caption()));
  if (what == controls::Property::kValue) setChecked(button_.Value());
}

}  // namespace velmar::qt
