#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/toolkit/FormObserver.h"

namespace velmar::controls {
class Control;
}
namespace velmar::toolkit {
class Form;
}

namespace velmar::qt {

/// A fixed dialog over one form: shows its caption and icon, hands its close box and the keys Enter, Esc, Tab
/// and F1 to the form, and takes no input while the form is not enabled. A derived window makes its views in
/// its constructor, lays them out, and binds each control to the widget that takes the focus for it.
///
/// Focus: the controls' FocusScope is the truth. The Tab key moves the focus there, and this window has the
/// bound widget follow. A view tells its control (`UserFocus`) when its widget gets the focus from the mouse
/// or an access key, and gives its widget the focus when the control asks for it (`FocusRequested`).
class FormWindow : public QDialog, private toolkit::FormObserver {
 public:
  /// The form is borrowed and outlives the window.
  FormWindow(toolkit::Form& form, QWidget* parent);
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;
  ~FormWindow() override;

  toolkit::Form& Shown() const noexcept { return form_; }
  /// `widget` has the focus when `control` has it. The widget is a child of this window.
  void Bind(controls::Control& control, QWidget& widget);
  /// Opens in the middle of the screen, as large as its content wants and the screen lets it.
  void Present();
  /// Has the form activated and gives its first control the focus.
  void Start();
  /// True from Start on.
  bool Started() const noexcept { return started_; }
  /// Gives the widget of the control that has the focus the focus of the window.
  void FollowFocus();
  /// Called when the form shows no more.
  void OnHidden(std::function<void()> handler) { hidden_ = std::move(handler); }

  /// Esc comes here, too; the window closes by its form alone.
  void reject() override;
  bool eventFilter(QObject* receiver, QEvent* event) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void FormChanged(toolkit::Form& form) override;
  void FormRefreshRequested(toolkit::Form& form) override;
  void FormHidden(toolkit::Form& form) override;
  bool IsInside(const QObject& receiver) const;
  bool TakeKey(int key);
  /// Runs what the user does as an event of the form's message loop, which takes its failure; true.
  bool Act(const std::function<void()>& action);

  toolkit::Form& form_;
  std::vector<std::pair<controls::Control*, QPointer<QWidget>>> widgets_;
  std::function<void()> hidden_;
  bool started_ = false;
};

/// Makes the window of a form.
using WindowFactory = std::function<std::unique_ptr<FormWindow>(toolkit::Form& form, QWidget* parent)>;

}  // namespace velmar::qt
