#include "qt/toolkit/QtToolkit.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMenu>
#include <QWindow>
#include <chrono>
#include <exception>
#include <iostream>

#include "platform/controls/CommonDialog.h"
#include "platform/controls/Menu.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/Form.h"
#include "qt/toolkit/Application.h"
#include "qt/toolkit/HelpWindow.h"
#include "qt/toolkit/MessageBox.h"
#include "qt/toolkit/SaveDialog.h"

namespace velmar::qt {
namespace {

constexpr int kHourglass = 11;

/// Where a menu opens: at the mouse or, if that is elsewhere because a key asks for the menu, at the place of
/// the keyboard.
QPoint PlaceOfMenu() {
  const QPoint mouse = QCursor::pos();
  const QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr || focus->rect().contains(focus->mapFromGlobal(mouse))) return mouse;
  return focus->mapToGlobal(focus->inputMethodQuery(Qt::ImCursorRectangle).toRect().center());
}

}  // namespace

/// The user's turn: Qt's loop runs by itself, whatever the program was doing, under the usual pointer.
class QtToolkit::UserTurn {
 public:
  explicit UserTurn(QtToolkit& toolkit)
      : toolkit_(toolkit), pumping_(std::exchange(toolkit.pumping_, false)), hourglass_(toolkit.hourglass_) {
    toolkit_.PointerChanged(0);
    toolkit_.Wake();
  }
  UserTurn(const UserTurn&) = delete;
  UserTurn& operator=(const UserTurn&) = delete;
  ~UserTurn() {
    toolkit_.pumping_ = pumping_;
    if (hourglass_) toolkit_.PointerChanged(toolkit_.MousePointer());
  }

 private:
  QtToolkit& toolkit_;
  bool pumping_;
  bool hourglass_;
};

QtToolkit::QtToolkit(Application& application, WindowFactory makeWindow, const toolkit::Clock& clock)
    : Toolkit(clock), application_(application), makeWindow_(std::move(makeWindow)) {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.callOnTimeout([this] { RunDue(); });
  Loop().Native(this);
  Loop().OnSooner([this] { Wake(); });
  Loop().OnFailure([this](const RuntimeError& failure) { TellFailure(failure); });
  application_.OnFailure([this](std::exception_ptr failure) {
    Loop().Dispatch([&failure] { std::rethrow_exception(failure); });
  });
}

QtToolkit::~QtToolkit() {
  application_.OnFailure(nullptr);
  Loop().OnSooner(nullptr);
  Loop().Native(nullptr);
  QtToolkit::PointerChanged(0);
}

bool QtToolkit::Process() {
  const bool outer = std::exchange(pumping_, true);
  const auto before = application_.UserEvents();
  QCoreApplication::processEvents();
  pumping_ = outer;
  Wake();
  return application_.UserEvents() != before;
}

void QtToolkit::RunDue() {
  // Inside DoEvents the message loop itself comes to what is due.
  if (pumping_) return;
  Loop().RunDue();
  Wake();
}

void QtToolkit::Wake() {
  const auto next = Loop().UntilNext();
  if (next) {
    timer_.start(std::chrono::ceil<std::chrono::milliseconds>(*next));
  } else {
    timer_.stop();
  }
}

void QtToolkit::RunModal(toolkit::Form& form) {
  const UserTurn turn(*this);
  const QPointer<QWidget> below = Parent();
  const std::unique_ptr<FormWindow> window = makeWindow_(form, below);
  struct Entry {
    Entry(std::vector<FormWindow*>& windows, FormWindow* window) : windows_(windows) {
      windows_.push_back(window);
    }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
    ~Entry() { windows_.pop_back(); }
    std::vector<FormWindow*>& windows_;
  };
  const Entry entry(windows_, window.get());

  QEventLoop loop;
  window->OnHidden([&loop] { loop.quit(); });
  window->Present();
  AwaitExposure(*window);
  window->Start();
  // Another end than the form's own, that of the whole program, leaves the form to be unloaded here.
  if (form.Visible()) loop.exec();
  if (form.Visible()) form.Unload();
  // A form that closes right behind its last box leaves some window managers without a window to go back to.
  if (below != nullptr && below->isVisible()) below->activateWindow();
}

void QtToolkit::AwaitExposure(QWidget& window) {
  // Its first event may be long work, and the user is to see the window meanwhile.
  constexpr std::chrono::milliseconds kPatience{250};
  const bool outer = std::exchange(pumping_, true);
  QElapsedTimer waited;
  waited.start();
  while (window.isVisible() && !window.windowHandle()->isExposed() && !waited.hasExpired(kPatience.count())) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
  }
  pumping_ = outer;
  // What came due meanwhile was left alone.
  Wake();
  window.repaint();
}

QWidget* QtToolkit::Parent() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return windows_.empty() ? owner_.data() : windows_.back();
}

toolkit::MsgBoxResult QtToolkit::ShowBox(const std::string& text, long style, const std::string& title) {
  const UserTurn turn(*this);
  return MessageBox(text, style, title, Parent()).Ask();
}

std::optional<std::string> QtToolkit::ChooseFileToSave(const controls::CommonDialog& dialog) {
  const UserTurn turn(*this);
  const auto confirm = [&](const std::string& path) {
    MessageBox question("El archivo " + path + " ya existe.\r¿Desea sustituirlo?",
                        toolkit::kYesNo | toolkit::kExclamation, dialog.DialogTitle(), Parent());
    question.PreferHarmless();
    return question.Ask() == toolkit::kYes;
  };
  return SaveDialog(dialog, confirm, Parent()).Ask();
}

void QtToolkit::PointerChanged(int shape) {
  const bool hourglass = shape == kHourglass;
  if (hourglass == hourglass_) return;
  hourglass_ = hourglass;
  if (hourglass) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

int QtToolkit::ChooseFromMenu(const controls::Menu& menu) {
  const UserTurn turn(*this);
  QMenu popup(Parent());
  popup.setObjectName(QString::fromStdString(menu.Name()));
  for (const controls::MenuItem& item : menu.Items()) {
    if (item.IsSeparator()) {
      popup.addSeparator();
    } else {
      popup.addAction(QString::fromStdString(item.caption));
    }
  }
  return static_cast<int>(popup.actions().indexOf(popup.exec(PlaceOfMenu())));
}

void QtToolkit::OpenHelp(const std::string& file, long topic) {
  const auto html = help_ ? help_(file, topic) : std::nullopt;
  if (!html) {
    MsgBox("No hay ayuda sobre esta ventana (tema " + std::to_string(topic) + " de " + file +
               ").\rCompruebe que el archivo de ayuda está instalado con la aplicación.",
           toolkit::kExclamation, "Ayuda del asistente de exportación");
    return;
  }
  // A window takes input only if it belongs to the innermost modal one.
  if (helpWindow_ != nullptr && helpWindow_->parentWidget() != Parent()) delete helpWindow_.data();
  if (helpWindow_ == nullptr) helpWindow_ = new HelpWindow(Parent());
  helpWindow_->ShowTopic(*html);
}

void QtToolkit::Beep() {
  QApplication::beep();
}

void QtToolkit::TellFailure(const RuntimeError& failure) {
  std::cerr << "Error " << failure.Number() << ": " << failure.Description();
  if (!failure.Source().empty()) std::cerr << " (" << failure.Source() << ')';
  std::cerr << std::endl;
  if (telling_) return;
  struct Telling {
    explicit Telling(bool& telling) : telling_(telling) { telling_ = true; }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;
    ~Telling() { telling_ = false; }
    bool& telling_;
  };
  const Telling telling(telling_);
  const toolkit::Form* form = ActiveForm();
  const QWidget* window = owner_ != nullptr ? owner_.data() : QApplication::activeWindow();
  const QString host = window != nullptr ? window->windowTitle() : QGuiApplication::applicationDisplayName();
  MsgBox("La última operación no se ha completado.\r\r" + failure.Description() + "\r\r(Error " +
             std::to_string(failure.Number()) +
             ".) Puede seguir trabajando; si se repite, avise al responsable de la aplicación.",
         toolkit::kCritical, form == nullptr ? host.toStdString() : form->Caption());
}

void QtToolkit::LostFailure(const std::string& form) noexcept {
  try {
    std::cerr << "La ventana " << form << " no ha podido cerrarse limpiamente." << std::endl;
  } catch (...) {
    // There is nobody left to tell.
  }
}

}  // namespace velmar::qt
