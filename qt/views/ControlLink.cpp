#include "qt/views/ControlLink.h"

#include <QEvent>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <utility>

namespace velmar::qt {

namespace {

class FocusFilter : public QObject {
 public:
  explicit FocusFilter(std::function<void()> focused) : focused_(std::move(focused)) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) focused_();
    return QObject::eventFilter(watched, event);
  }

 private:
  std::function<void()> focused_;
};

}  // namespace

ControlLink::ControlLink(controls::Control& control, QWidget& widget, UserEvents events)
    : control_(&control), widget_(widget), events_(std::move(events)) {
  control.Observe(*this);
  focusFilter_ = std::make_unique<FocusFilter>([this] { Act([this] { control_->UserFocus(); }); });
  widget.installEventFilter(focusFilter_.get());
  widget.setObjectName(QString::fromStdString(control.Name()));
  widget.setProperty(kHandleProperty, QVariant::fromValue<qlonglong>(control.hWnd()));
  widget.setAccessibleName(QString::fromStdString(control.AccessibleName()));
  widget.setToolTip(QString::fromStdString(control.ToolTipText()));
  widget.setEnabled(control.Enabled());
  widget.setVisible(control.Visible());
}

ControlLink::~ControlLink() {
  if (control_ != nullptr) control_->Unobserve(*this);
}

void ControlLink::Act(const std::function<void()>& action) const {
  if (control_ != nullptr) events_(action);
}

void ControlLink::Changed(controls::Control& control, controls::Property what) {
  switch (what) {
    case controls::Property::kEnabled:
      widget_.setEnabled(control.Enabled());
      break;
    case controls::Property::kVisible:
      widget_.setVisible(control.Visible());
      break;
    case controls::Property::kToolTip:
      widget_.setToolTip(QString::fromStdString(control.ToolTipText()));
      break;
    default:
      Show(what);
  }
}

void ControlLink::FocusRequested(controls::Control& /*control*/) {
  widget_.setFocus(Qt::OtherFocusReason);
}

void ControlLink::RefreshRequested(controls::Control& /*control*/) {
  widget_.repaint();
}

void ControlLink::RepaintRequested(controls::Control& control) {
  widget_.update();
  control.Validate();
}

void ControlLink::Destroyed(controls::Control& /*control*/) {
  control_ = nullptr;
  widget_.setEnabled(false);
}

}  // namespace velmar::qt
