#include "platform/toolkit/Toolkit.h"

#include <gtest/gtest.h>

#include "platform/controls/Frame.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/TestForm.h"

namespace velmar::toolkit {
namespace {

class ToolkitTest : public testing::Test {
 protected:
  void InWindow(const std::function<void(TestForm&)>& action) {
    auto form = MakeForm<TestForm>(toolkit, log);
    form->HelpContextID(138);
    toolkit.WhenShown("frmPrueba", [&](Form& shown) {
      action(*form);
      shown.Unload();
    });
    form->Show();
  }

  ScriptedToolkit toolkit;
  std::string log;
};

TEST_F(ToolkitTest, HelpOpensAtTheTopicOfTheFocusAndThePointerIsRemembered) {
  toolkit.HelpFile("/app\\Quinvera.chm");
  InWindow([&](TestForm& form) {
    controls::Frame frame("fra");
    frame.HelpContextID(9);
    form.box.SetFocus();
    toolkit.SendKeys("{F1}", true);
    form.button.HelpContextID(7);
    form.button.UserClick();
    toolkit.SendKeys("{F1}", true);
    form.box.Container(&frame);
    form.box.SetFocus();
    toolkit.UserHelp();
    form.box.Container(nullptr);
  });
  toolkit.MousePointer(11);
  EXPECT_EQ(toolkit.MousePointer(), 11);
  std::string topics;
  for (const Record& record : toolkit.Records(Record::Kind::kHelp)) {
    EXPECT_EQ(record.text, "/app\\Quinvera.chm");
    topics += std::to_string(record.number) + " ";
  }
  EXPECT_EQ(topics, "138 7 9 ");
}

TEST_F(ToolkitTest, KeysReachTheFocusNowOrInTheNextTurn) {
  InWindow([&](TestForm& form) {
    form.box.SetFocus();
    toolkit.SendKeys("añ", true);
    EXPECT_EQ(form.box.Text(), "añ");
    toolkit.SendKeys("o{TAB}", false);
    EXPECT_EQ(form.box.Text(), "añ");
    toolkit.DoEvents();
    EXPECT_EQ(form.box.Text(), "año");
    EXPECT_TRUE(form.button.HasFocus());
    form.button.Cancel(true);
    form.button.Click = [this] { log += "click "; };
    toolkit.SendKeys("~{esc}", true);
    EXPECT_THROW(toolkit.SendKeys("x{F9}", true), RuntimeError);
  });
  EXPECT_EQ(log, "Initialize Load Activate click click Unload Terminate ");
}

}  // namespace
}  // namespace velmar::toolkit
