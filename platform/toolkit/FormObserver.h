#pragma once

namespace velmar::toolkit {

class Form;

/// Whoever shows a form. All do nothing by default.
class FormObserver {
 public:
  virtual ~FormObserver() = default;

  /// Caption, icon or enabledness is another.
  virtual void FormChanged(Form& /*form*/) {}
  /// The form is to be painted before the program goes on.
  virtual void FormRefreshRequested(Form& /*form*/) {}
  /// The form shows no more: the modal loop ends.
  virtual void FormHidden(Form& /*form*/) {}
};

}  // namespace velmar::toolkit
