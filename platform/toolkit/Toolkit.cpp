#include "platform/toolkit/Toolkit.h"

#include <cstddef>
#include <utility>

#include "platform/controls/Control.h"
#include "platform/controls/Menu.h"
#include "platform/controls/TextBox.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Case.h"
#include "platform/text/Characters.h"
#include "platform/toolkit/Form.h"

namespace velmar::toolkit {
namespace {

std::vector<std::string> Keys(std::string_view text) {
  std::vector<std::string> keys;
  while (!text.empty()) {
    const std::size_t close = text.front() == '{' ? text.find('}') : std::string_view::npos;
    const std::string key =
        close == std::string_view::npos ? text::Left(text, 1) : text::UCase(text.substr(0, close + 1));
    text.remove_prefix(close == std::string_view::npos ? key.size() : close + 1);
    keys.push_back(key == "~" ? "{ENTER}" : key);
  }
  for (const std::string& key : keys) {
    if (key.size() > 1 && key.front() == '{' && key != "{F1}" && key != "{ENTER}" && key != "{ESC}" &&
        key != "{TAB}") {
      throw RuntimeError(kInvalidProcedureCall, "SendKeys no conoce la tecla " + key + ".", "SendKeys");
    }
  }
  return keys;
}

}  // namespace

Toolkit::Toolkit(const Clock& clock) : loop_(clock) {}

MsgBoxResult Toolkit::MsgBox(const std::string& text, long style, const std::string& title) {
  return ShowBox(text, style, title);
}

void Toolkit::MousePointer(int shape) {
  pointer_ = shape;
  PointerChanged(shape);
}

void Toolkit::UserHelp() {
  const Form* form = ActiveForm();
  if (form == nullptr) return;
  long topic = 0;
  for (const controls::Control* at = form->Scope().ActiveControl(); at != nullptr && topic == 0;
       at = at->Container()) {
    topic = at->HelpContextID();
  }
  OpenHelp(helpFile_, topic != 0 ? topic : form->HelpContextID());
}

void Toolkit::SendKeys(std::string_view keys, bool wait) {
  for (const std::string& key : Keys(keys)) {
    if (wait) {
      Press(key);
    } else {
      loop_.Post([this, key] { Press(key); });
    }
  }
}

void Toolkit::Press(const std::string& key) {
  Form* form = ActiveForm();
  if (form == nullptr) return;
  if (key == "{F1}") {
    UserHelp();
  } else if (key == "{ENTER}") {
    form->Scope().UserEnter();
  } else if (key == "{ESC}") {
    form->Scope().UserEscape();
  } else if (key == "{TAB}") {
    form->Scope().UserTab();
  } else if (auto* box = dynamic_cast<controls::TextBox*>(form->Scope().ActiveControl())) {
    box->UserType(key);
  }
}

void Toolkit::PopupMenu(const controls::Menu& menu) {
  const int chosen = ChooseFromMenu(menu);
  if (chosen >= 0) menu.UserChoose(static_cast<std::size_t>(chosen));
}

void Toolkit::ShowModal(Form& form) {
  struct Modal {
    Modal(std::vector<Form*>& forms, Form& form)
        : forms_(forms), below_(forms.empty() ? nullptr : forms.back()) {
      if (below_ != nullptr) below_->Scope().Blocked(true);
      forms_.push_back(&form);
    }
    Modal(const Modal&) = delete;
    Modal& operator=(const Modal&) = delete;
    ~Modal() {
      forms_.pop_back();
      if (below_ != nullptr) below_->Scope().Blocked(false);
    }
    std::vector<Form*>& forms_;
    Form* below_;
  };
  const Modal modal(modal_, form);
  RunModal(form);
}

}  // namespace velmar::toolkit
