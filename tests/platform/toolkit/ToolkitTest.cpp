#include "platform/toolkit/Toolkit.h"

#include <gtest/gtest.h>

#include "platform/controls/Frame.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/TestForm.h"

namespace velmar::toolkit {
namespace {

TEST(Toolkit, KeysReachTheFocusAndHelpOpensAtItsTopic) {
  ScriptedToolkit toolkit;
  toolkit.HelpFile("/app\\Quinvera.chm");
  std::string log;
  auto form = MakeForm<TestForm>(toolkit, log);
  controls::Frame frame("fra");
  form->HelpContextID(138);
  frame.HelpContextID(9);
  form->button.HelpContextID(7);
  form->button.Cancel(true);
  form->button.Click = [&] { log += "click "; };
  toolkit.WhenShown("frmPrueba", [&](Form& shown) {
    form->box.SetFocus();
    toolkit.SendKeys("añ{F1}", true);
    toolkit.SendKeys("o{TAB}", false);
    EXPECT_EQ(form->box.Text(), "añ") << "the rest comes in the next turn";
    toolkit.DoEvents();
    EXPECT_EQ(form->box.Text(), "año");
    toolkit.SendKeys("{F1}~{esc}", true);
    EXPECT_THROW(toolkit.SendKeys("x{F9}", true), RuntimeError);
    form->box.Container(&frame);
    form->box.SetFocus();
    toolkit.UserHelp();
    form->box.Container(nullptr);
    shown.Unload();
  });
  form->Show();
  EXPECT_EQ(log, "Initialize Load Activate click click Unload ");
  std::string topics;
  for (const Record& record : toolkit.Records(Record::Kind::kHelp)) {
    EXPECT_EQ(record.text, "/app\\Quinvera.chm");
    topics += std::to_string(record.number) + " ";
  }
  EXPECT_EQ(topics, "138 7 9 ");
}

}  // namespace
}  // namespace velmar::toolkit
