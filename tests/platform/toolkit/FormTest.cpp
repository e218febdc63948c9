#include "platform/toolkit/Form.h"

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/FormObserver.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/TestForm.h"

namespace velmar::toolkit {
namespace {

class FormTest : public testing::Test {
 protected:
  std::shared_ptr<TestForm> Make() { return MakeForm<TestForm>(toolkit, log); }

  ScriptedToolkit toolkit;
  std::string log;
};

TEST_F(FormTest, EventsComeInTheirOrder) {
  auto form = Make();
  toolkit.WhenShown("frmPrueba", [](Form& shown) { EXPECT_TRUE(shown.UserClose()); });
  form->Show();
  log += "returned ";
  EXPECT_FALSE(form->Loaded());
  form.reset();
  EXPECT_EQ(log, "Initialize Load Activate Unload returned Terminate ");
}

TEST_F(FormTest, AHiddenFormStaysLoadedAndIsActivatedAgain) {
  auto form = Make();
  form->Load();
  form->Load();
  for (int i = 0; i < 2; ++i) {
    toolkit.WhenShown("frmPrueba", [](Form& shown) { shown.Hide(); });
    form->Show();
  }
  form->Unload();
  form->Unload();
  EXPECT_EQ(log, "Initialize Load Activate Activate Unload ");
}

TEST_F(FormTest, AFailureOfLoadOrItsUnloadingThereKeepsItFromShowing) {
  auto form = Make();
  form->onLoad = [] { throw RuntimeError(kFileNotFound, "No existe."); };
  EXPECT_THROW(form->Show(), RuntimeError);
  EXPECT_FALSE(form->Loaded());
  form->onLoad = [&] { form->Unload(); };
  form->Show();
  form.reset();
  EXPECT_EQ(log, "Initialize Load Load Unload Terminate ");
  EXPECT_TRUE(toolkit.Records(Record::Kind::kWindow).empty());
}

TEST_F(FormTest, UnloadCanBeCancelledButAFailureOfItClosesAllTheSame) {
  auto form = Make();
  form->onUnload = [](bool& cancel) { cancel = true; };
  toolkit.WhenShown("frmPrueba", [](Form& shown) {
    shown.Unload();
    EXPECT_TRUE(shown.Visible());
    shown.Hide();
  });
  form->Show();
  EXPECT_TRUE(form->Loaded());
  form->onUnload = [&](bool&) {
    form->Unload();
    throw RuntimeError(kObjectClosed, "Cerrado.");
  };
  EXPECT_THROW(form->Unload(), RuntimeError);
  EXPECT_FALSE(form->Loaded());
  EXPECT_EQ(log, "Initialize Load Activate Unload Unload ");
}

TEST_F(FormTest, TheLastReferenceEndsALoadedForm) {
  auto form = Make();
  form->Load();
  form->onUnload = [](bool&) { throw RuntimeError(kObjectClosed, "Cerrado."); };
  form.reset();
  EXPECT_EQ(log, "Initialize Load Unload Terminate ");
  EXPECT_EQ(toolkit.Records(Record::Kind::kLostFailure).size(), 1U);
}

TEST_F(FormTest, AFormThatLosesItsLastOwnerWhileShowingLivesToTheEndOfShow) {
  auto form = Make();
  TestForm* shown = form.get();
  toolkit.WhenShown("frmPrueba", [&](Form& window) {
    form.reset();
    window.Unload();
  });
  shown->Show();
  EXPECT_EQ(log, "Initialize Load Activate Unload Terminate ");
}

TEST_F(FormTest, AModalWindowBlocksTheOneBelow) {
  auto below = Make();
  auto above = MakeForm<TestForm>(toolkit, log, "frmDatos");
  int clicks = 0;
  below->button.Click = [&] { ++clicks; };
  toolkit.WhenShown("frmPrueba", [&](Form& window) {
    EXPECT_TRUE(below->button.UserClick());
    EXPECT_THROW(below->Show(), RuntimeError) << "a form shows once at a time";
    above->Show();
    EXPECT_TRUE(below->button.UserClick());
    window.Unload();
  });
  toolkit.WhenShown("frmDatos", [&](Form& window) {
    EXPECT_EQ(toolkit.ActiveForm(), above.get());
    EXPECT_FALSE(below->button.UserClick());
    EXPECT_FALSE(below->UserClose());
    above->Enabled(false);
    EXPECT_FALSE(above->UserClose());
    above->Enabled(true);
    window.Hide();
  });
  below->Show();
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(toolkit.ActiveForm(), nullptr);
}

TEST_F(FormTest, TellsWhoeverShowsIt) {
  struct Observer : FormObserver {
    void FormChanged(Form& /*form*/) override { log += "c"; }
    void FormRefreshRequested(Form& /*form*/) override { log += "r"; }
    void FormHidden(Form& /*form*/) override { log += "h"; }
    std::string log;
  };
  Observer observer;
  auto form = Make();
  form->Observe(observer);
  form->Caption("Datos del campo");
  form->Enabled(false);
  form->Refresh();
  toolkit.WhenShown("frmPrueba", [](Form& shown) { shown.Hide(); });
  form->Show();
  form->Unobserve(observer);
  form->Caption("x");
  EXPECT_EQ(observer.log, "ccrh");
}

}  // namespace
}  // namespace velmar::toolkit
