#include "platform/toolkit/ScriptedToolkit.h"

#include <gtest/gtest.h>

#include "platform/controls/Menu.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/TestForm.h"

namespace velmar::toolkit {
namespace {

TEST(ScriptedToolkit, AnswersQuestionsAndRecordsBoxesAsTheyAre) {
  ScriptedToolkit toolkit;
  toolkit.AlwaysAnswer(kNo);
  toolkit.Answer(kYes, "eliminar");
  const std::string text = "¿Desea eliminar\rla plantilla?";
  EXPECT_EQ(toolkit.MsgBox("¿Desea seguir?", 36, "Gestión"), kNo);
  EXPECT_EQ(toolkit.MsgBox(text, 36, "Gestión"), kYes);
  EXPECT_EQ(toolkit.MsgBox(text, 36, "Gestión"), kNo) << "a single answer is used once";
  EXPECT_EQ(toolkit.MsgBox("¡Aviso!", 48, "Gestión"), kOk);
  toolkit.Beep();
  const auto& records = toolkit.Records();
  ASSERT_EQ(records.size(), 5U);
  EXPECT_EQ(records[1].text, text);
  EXPECT_EQ(records[1].number, 36);
  EXPECT_EQ(records[1].title, "Gestión");
  EXPECT_EQ(records[1].result, kYes);
  EXPECT_EQ(records[4].kind, Record::Kind::kBeep);
}

TEST(ScriptedToolkit, AQuestionWithoutAnAnswerIsAnError) {
  ScriptedToolkit toolkit;
  EXPECT_THROW(toolkit.MsgBox("¿Sí?", 36, "t"), RuntimeError);
  toolkit.Answer(kCancel);
  EXPECT_THROW(toolkit.MsgBox("¿Sí?", 36, "t"), RuntimeError) << "the box has no such button";
  EXPECT_EQ(toolkit.Records(Record::Kind::kBox).size(), 2U) << "what was asked is on record";
}

TEST(ScriptedToolkit, GivesFilesAndCancels) {
  ScriptedToolkit toolkit;
  std::string log;
  TestForm form(toolkit, log);
  form.dialog.CancelError(true);
  form.dialog.DialogTitle("Indique el nombre");
  form.dialog.Flags(8198);
  toolkit.AnswerFile("/datos/hoja.xls");
  toolkit.AnswerFile(std::nullopt);
  form.dialog.ShowSave();
  EXPECT_EQ(form.dialog.FileName(), "/datos/hoja.xls");
  for (const long failure : {kDialogCancelled, kInternalError}) {
    try {
      form.dialog.ShowSave();
      FAIL() << "no error";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), failure);
    }
  }
  const auto dialogs = toolkit.Records(Record::Kind::kFileDialog);
  ASSERT_EQ(dialogs.size(), 3U);
  EXPECT_EQ(dialogs[0].number, 8198);
  EXPECT_EQ(dialogs[0].result, kOk);
  EXPECT_EQ(dialogs[1].result, kCancel);
}

TEST(ScriptedToolkit, ChoosesFromMenus) {
  ScriptedToolkit toolkit;
  controls::Menu menu("mnuEmergente");
  int chosen = 0;
  menu.Add({"mnuVerFiltro", "Ver filtro", [&] { ++chosen; }});
  toolkit.PopupMenu(menu);
  EXPECT_EQ(chosen, 0) << "without an answer it is left alone";
  toolkit.AnswerMenu("Ver filtro");
  toolkit.PopupMenu(menu);
  EXPECT_EQ(chosen, 1);
  toolkit.AnswerMenu("Otra");
  EXPECT_THROW(toolkit.PopupMenu(menu), RuntimeError);
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
