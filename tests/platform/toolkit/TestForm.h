#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/controls/CommandButton.h"
#include "platform/controls/CommonDialog.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/Timer.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ScriptedToolkit.h"

namespace velmar::toolkit {

/// A window that writes down its events.
class TestForm : public Form {
 public:
  TestForm(Toolkit& toolkit, std::string& events, std::string name = "frmPrueba")
      : Form(toolkit, std::move(name)), log(events) {
    Add(box);
    Add(button);
    Add(timer);
    Add(dialog);
  }

  std::string& log;
  controls::TextBox box{"txt"};
  controls::CommandButton button{"cmd"};
  controls::Timer timer{"tmr"};
  controls::CommonDialog dialog{"dlg"};
  std::function<void()> onLoad;
  std::function<void()> onActivate;
  std::function<void(bool&)> onUnload;

 protected:
  void Form_Initialize() override { log += "Initialize "; }
  void Form_Load() override {
    log += "Load ";
    if (onLoad) onLoad();
  }
  void Form_Activate() override {
    log += "Activate ";
    if (onActivate) onActivate();
  }
  void Form_Unload(bool& cancel) override {
    log += "Unload ";
    if (onUnload) onUnload(cancel);
  }
  void Form_Terminate() override { log += "Terminate "; }
};

}  // namespace velmar::toolkit
