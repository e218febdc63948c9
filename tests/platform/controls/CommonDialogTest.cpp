#include "platform/controls/CommonDialog.h"

#include <gtest/gtest.h>

#include "platform/controls/FileChooser.h"
#include "platform/error/Failure.h"

namespace velmar::controls {
namespace {

struct Chooser : FileChooser {
  std::optional<std::string> ChooseFileToSave(const CommonDialog& /*dialog*/) override { return answer; }
  std::optional<std::string> answer;
};

TEST(CommonDialog, GivesTheNameOrTellsThatThereIsNone) {
  Chooser chooser;
  CommonDialog dialog("dlgExportar");
  dialog.Chooser(&chooser);
  dialog.FileName("anterior.xls");
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileName(), "anterior.xls") << "cancelled without an error";
  dialog.CancelError(true);
  EXPECT_EQ(FailureOf([&] { dialog.ShowSave(); }), kDialogCancelled);
  dialog.DefaultExt("xls");
  const std::pair<const char*, const char*> names[] = {{"hoja", "hoja.xls"},
                                                       {"hoja.txt", "hoja.txt"},
                                                       {"C:\\datos\\hoja.XLS", "C:\\datos\\hoja.XLS"},
                                                       {"C:\\v1.2\\hoja", "C:\\v1.2\\hoja.xls"},
                                                       {"/datos/.hoja", "/datos/.hoja.xls"},
                                                       {"/datos/", "/datos/"}};
  for (const auto& [chosen, kept] : names) {
    chooser.answer = chosen;
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileName(), kept);
  }
}

TEST(CommonDialog, TakesTheFilterApart) {
  CommonDialog dialog("dlg");
  dialog.Filter("Archivos de Excel |*.xls|Otros|*.a;*.b");
  ASSERT_EQ(dialog.FileTypes().size(), 2U);
  EXPECT_EQ(dialog.FileTypes()[0].description, "Archivos de Excel");
  EXPECT_EQ(dialog.FileTypes()[1].patterns, "*.a;*.b");
}

}  // namespace
}  // namespace velmar::controls
