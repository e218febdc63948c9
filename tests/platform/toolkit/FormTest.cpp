#include "platform/toolkit/Form.h"

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
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

TEST_F(FormTest, AHiddenFormStaysLoadedAndIsActivatedAgain) {
  auto form = Make();
  toolkit.WhenShown("frmPrueba", [](Form& shown) { shown.Hide(); });
  toolkit.WhenShown("frmPrueba", [](Form& shown) { EXPECT_TRUE(shown.UserClose()); });
  for (int i = 0; i < 2; ++i) form->Show();
  log += "returned ";
  form->Unload();
  form.reset();
  EXPECT_EQ(log, "Initialize Load Activate Activate Unload returned Terminate ");
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

TEST_F(FormTest, AnUnloadingThatFailsClosesAllTheSameAndTheLastReferenceEndsALoadedForm) {
  auto form = Make();
  form->onUnload = [&](bool&) {
    if (form) form->Unload();
    throw RuntimeError(kObjectClosed, "Cerrado.");
  };
  form->Load();
  EXPECT_THROW(form->Unload(), RuntimeError);
  EXPECT_FALSE(form->Loaded());
  form->Load();
  form.reset();
  EXPECT_EQ(log, "Initialize Load Unload Load Unload Terminate ");
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

}  // namespace
}  // namespace velmar::toolkit
