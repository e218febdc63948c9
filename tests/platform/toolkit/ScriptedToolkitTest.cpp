#include "platform/toolkit/ScriptedToolkit.h"

#include <gtest/gtest.h>

#include "platform/controls/Menu.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/TestForm.h"

namespace velmar::toolkit {
namespace {

TEST(ScriptedToolkit, AnswersQuestionsAndRecordsThem) {
  ScriptedToolkit toolkit;
  toolkit.Answer(kYes, "eliminar");
  EXPECT_THROW(toolkit.MsgBox("¿Desea seguir?", 36, "Gestión"), RuntimeError) << "without an answer";
  toolkit.AlwaysAnswer(kNo);
  EXPECT_EQ(toolkit.MsgBox("¿Desea seguir?", 36, "Gestión"), kNo);
  EXPECT_EQ(toolkit.MsgBox("¿Desea eliminar?", 36, "Gestión"), kYes);
  EXPECT_EQ(toolkit.MsgBox("¿Desea eliminar?", 36, "Gestión"), kNo) << "a single answer is used once";
  EXPECT_EQ(toolkit.MsgBox("¡Aviso!", 48, "Gestión"), kOk);
  toolkit.Answer(kCancel);
  EXPECT_THROW(toolkit.MsgBox("¿Sí?", 36, "Gestión"), RuntimeError) << "the box has no such button";
  const controls::Menu menu("mnuEmergente");
  toolkit.PopupMenu(menu);  // without an answer it is left alone
  toolkit.AnswerMenu("Otra");
  EXPECT_THROW(toolkit.PopupMenu(menu), RuntimeError) << "the menu has no such entry";
  const auto boxes = toolkit.Records(Record::Kind::kBox);
  ASSERT_EQ(boxes.size(), 6U);
  EXPECT_EQ(boxes[2].text, "¿Desea eliminar?");
  EXPECT_EQ(boxes[2].result, kYes);
}

TEST(ScriptedToolkit, AWindowThatNobodyClosesIsAnErrorAndNoHang) {
  ScriptedToolkit toolkit;
  std::string log;
  auto form = MakeForm<TestForm>(toolkit, log);
  EXPECT_THROW(form->Show(), RuntimeError);
  EXPECT_FALSE(form->Visible());
  form->timer.Interval(60000);
  form->timer.Enabled(true);
  EXPECT_THROW(form->Show(), RuntimeError) << "not even with a timer that runs on and on";
  form->timer.Elapsed = [&] { form->Hide(); };
  EXPECT_NO_THROW(form->Show()) << "a timer can close it";
  form->timer.Enabled(false);
  toolkit.WheneverShown("frmPrueba", [](Form&) {});
  EXPECT_THROW(form->Show(), RuntimeError);
}

TEST(ScriptedToolkit, TheUsersFailuresGoToTheLoopsHandler) {
  ScriptedToolkit toolkit;
  std::string log;
  toolkit.Loop().OnFailure([&](const RuntimeError& error) { log += error.Description() + " "; });
  auto form = MakeForm<TestForm>(toolkit, log);
  form->onActivate = [] { throw RuntimeError(kFileNotFound, "activar"); };
  form->button.Click = [] { throw RuntimeError(kFileNotFound, "pulsar"); };
  toolkit.WhenShown("frmPrueba", [&](Form&) { form->button.UserClick(); });
  toolkit.WhenShown("frmPrueba", [&](Form&) { form->Unload(); });
  form->Show();
  EXPECT_EQ(log, "Initialize Load Activate activar pulsar Unload ");
}

}  // namespace
}  // namespace velmar::toolkit
