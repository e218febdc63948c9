#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/controls/FocusScope.h"
#include "platform/controls/ObserverList.h"
#include "platform/toolkit/Picture.h"

namespace velmar::controls {
class CommonDialog;
class Control;
class Menu;
class Timer;
}  // namespace velmar::controls

namespace velmar::toolkit {

class FormObserver;
class Toolkit;

/// A window. Its events come in this order: Form_Initialize when it is made (see MakeForm), Form_Load once
/// before it is first shown, Form_Activate each time it is shown, Form_Unload when it is closed,
/// Form_Terminate when it ends. A derived form owns its controls as members and adds them to the form.
class Form : public std::enable_shared_from_this<Form> {
 public:
  /// The toolkit is borrowed and outlives the form.
  Form(Toolkit& toolkit, std::string name);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form();

  const std::string& Name() const noexcept { return name_; }
  Toolkit& Surroundings() const noexcept { return toolkit_; }

  const std::string& Caption() const noexcept { return caption_; }
  void Caption(std::string caption);
  const Picture& Icon() const noexcept { return icon_; }
  void Icon(Picture icon);
  long HelpContextID() const noexcept { return helpContext_; }
  void HelpContextID(long topic) noexcept { helpContext_ = topic; }
  /// While false, no control takes user actions, and the close box does nothing.
  bool Enabled() const noexcept { return scope_.Enabled(); }
  void Enabled(bool enabled);
  bool Visible() const noexcept { return visible_; }
  bool Loaded() const noexcept { return loaded_; }

  /// Runs Form_Load, unless the form is loaded. If it fails, the form is not loaded.
  void Load();
  /// Loads and shows the form, and returns when it is hidden or unloaded. Raises kInvalidProcedureCall if it
  /// is showing already.
  void Show();
  /// Ends Show; the form stays loaded.
  void Hide();
  /// Runs Form_Unload and closes the form, unless the event cancels it. Nothing for a form that is not
  /// loaded. If the event fails, the form is closed all the same.
  void Unload();
  /// Painted before the program goes on.
  void Refresh();
  /// Opens the menu at the pointer; the entry that the user chooses runs before this returns.
  void PopupMenu(const controls::Menu& menu);

  /// The user closes the window by its frame.
  bool UserClose();

  controls::FocusScope& Scope() noexcept { return scope_; }
  const controls::FocusScope& Scope() const noexcept { return scope_; }

  void Observe(FormObserver& observer);
  void Unobserve(FormObserver& observer) noexcept;

  /// For toolkits: the form has been put on the screen.
  void Activate() { Form_Activate(); }
  /// For MakeForm.
  void Initialize();
  void Terminate() noexcept;

 protected:
  /// Takes a control into the window; timers and dialogs get what makes them work.
  void Add(controls::Control& control);
  void Add(controls::Timer& timer);
  void Add(controls::CommonDialog& dialog);

  virtual void Form_Initialize() {}
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  /// Set `Cancel` to keep the window open.
  virtual void Form_Unload(bool& /*Cancel*/) {}
  virtual void Form_Terminate() {}

 private:
  template <typename Notice>
  void Notify(Notice notice);
  void Disappear();

  Toolkit& toolkit_;
  std::string name_;
  std::string caption_;
  Picture icon_;
  controls::FocusScope scope_;
  controls::ObserverList<FormObserver> observers_;
  long helpContext_ = 0;
  bool initialized_ = false;
  bool loaded_ = false;
  bool unloading_ = false;
  bool visible_ = false;
};

}  // namespace velmar::toolkit
