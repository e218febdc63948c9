#include "qt/toolkit/FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QString>

#include "platform/controls/Control.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Toolkit.h"
#include "qt/toolkit/PictureIcon.h"

namespace velmar::qt {
namespace {

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::Wheel:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

// What a window manager puts around a window, by a generous guess: it is not known before the window shows.
constexpr QSize kFrame{16, 48};
constexpr Qt::KeyboardModifiers kCommandKeys = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

}  // namespace

FormWindow::FormWindow(toolkit::Form& form, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint),
      form_(form) {
  setWindowModality(Qt::ApplicationModal);
  setObjectName(QString::fromStdString(form.Name()));
  FormWindow::FormChanged(form);
  form_.Observe(*this);
  // Keys go to the widget with the focus first, and some would keep Enter or Esc to themselves.
  qApp->installEventFilter(this);
}

FormWindow::~FormWindow() {
  form_.Unobserve(*this);
}

void FormWindow::Bind(controls::Control& control, QWidget& widget) {
  widgets_.emplace_back(&control, &widget);
}

void FormWindow::Present() {
  ensurePolished();
  if (layout() != nullptr) layout()->activate();
  const QRect room = screen()->availableGeometry();
  setFixedSize(sizeHint().expandedTo(minimumSizeHint()).boundedTo(room.size() - kFrame));
  move(room.center() - rect().center());
  show();
  activateWindow();
}

void FormWindow::Start() {
  started_ = true;
  Act([this] {
    if (form_.Visible()) form_.Activate();
  });
  Act([this] {
    if (form_.Visible() && form_.Scope().ActiveControl() == nullptr) form_.Scope().UserTab();
    FollowFocus();
  });
}

void FormWindow::FollowFocus() {
  const controls::Control* active = form_.Scope().ActiveControl();
  for (const auto& [control, widget] : widgets_) {
    if (control == active && widget != nullptr && !widget->hasFocus()) {
      widget->setFocus(Qt::TabFocusReason);
      return;
    }
  }
}

void FormWindow::reject() {
  Act([this] { form_.Scope().UserEscape(); });
}

bool FormWindow::eventFilter(QObject* receiver, QEvent* event) {
  if (!IsInput(event->type()) || !IsInside(*receiver)) return QDialog::eventFilter(receiver, event);
  if (!form_.Enabled()) return true;
  if (event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if ((key.modifiers() & kCommandKeys) == Qt::NoModifier && TakeKey(key.key())) return true;
  }
  return QDialog::eventFilter(receiver, event);
}

bool FormWindow::IsInside(const QObject& receiver) const {
  // What pops up (the open part of a combo box, a menu) is a window of its own with its own keys.
  return receiver.isWidgetType() && static_cast<const QWidget&>(receiver).window() == this;
}

bool FormWindow::TakeKey(int key) {
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Act([this] { form_.Scope().UserEnter(); });
    case Qt::Key_Escape:
      return Act([this] { form_.Scope().UserEscape(); });
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return focusNextPrevChild(key == Qt::Key_Tab);
    case Qt::Key_F1:
      return Act([this] { form_.Surroundings().UserHelp(); });
    default:
      return false;
  }
}

bool FormWindow::Act(const std::function<void()>& action) {
  form_.Surroundings().Loop().Dispatch(action);
  return true;
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  Act([this] { form_.UserClose(); });
}

bool FormWindow::focusNextPrevChild(bool next) {
  return Act([&] {
    form_.Scope().UserTab(!next);
    FollowFocus();
  });
}

void FormWindow::FormChanged(toolkit::Form& form) {
  setWindowTitle(QString::fromStdString(form.Caption()));
  setWindowIcon(PictureIcon(form.Icon()));
  // While the form was disabled, a click may have moved Qt's focus alone.
  if (form.Enabled()) FollowFocus();
}

void FormWindow::FormRefreshRequested(toolkit::Form& /*form*/) {
  repaint();
}

void FormWindow::FormHidden(toolkit::Form& /*form*/) {
  // An open menu is a window of its own, and would stay over whatever comes to light behind this one.
  QWidget* popup = QApplication::activePopupWidget();
  const QWidget* opener = popup;
  while (opener != nullptr && opener != this) opener = opener->parentWidget();
  if (opener != nullptr) popup->close();
  hide();
  if (hidden_) hidden_();
}

}  // namespace velmar::qt
