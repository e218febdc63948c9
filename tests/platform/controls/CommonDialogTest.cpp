#include "platform/controls/CommonDialog.h"

#include <gtest/gtest.h>

#include "platform/controls/Failure.h"
#include "platform/controls/FileChooser.h"
#include "platform/error/ErrorNumber.h"

namespace velmar::controls {
namespace {

struct Chooser : FileChooser {
  std::optional<std::string> ChooseFileToSave(const CommonDialog& /*dialog*/) override { return answer; }
  std::optional<std::string> answer;
};

TEST(CommonDialog, GivesTheNameOrTellsThatThereIsNone) {
  Chooser chooser;
  CommonDialog dialog("dlgExportar");
  EXPECT_EQ(FailureOf([&] { dialog.ShowSave(); }), kObjectNotSet);
  dialog.Chooser(&chooser);
  dialog.DefaultExt("xls");
  dialog.FileName("anterior.xls");
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileName(), "anterior.xls") << "cancelled without an error";
  dialog.CancelError(true);
  EXPECT_EQ(FailureOf([&] { dialog.ShowSave(); }), kDialogCancelled);
  chooser.answer = "/datos/v1.2/hoja";
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileName(), "/datos/v1.2/hoja.xls");
}

TEST(CommonDialog, AddsTheExtensionWhereThereIsNone) {
  CommonDialog dialog("dlg");
  EXPECT_EQ(dialog.WithDefaultExt("hoja"), "hoja");
  dialog.DefaultExt("xls");
  for (const char* kept : {"hoja.xls", "hoja.txt", "C:\\datos\\hoja.XLS", "", "/datos/"}) {
    EXPECT_EQ(dialog.WithDefaultExt(kept), kept);
  }
  EXPECT_EQ(dialog.WithDefaultExt("C:\\v1.2\\hoja"), "C:\\v1.2\\hoja.xls");
  EXPECT_EQ(dialog.WithDefaultExt("/datos/.hoja"), "/datos/.hoja.xls");
}

TEST(CommonDialog, TakesTheFilterApart) {
  CommonDialog dialog("dlg");
  dialog.Filter("Archivos de Excel |*.xls|");
  ASSERT_EQ(dialog.FileTypes().size(), 1U);
  EXPECT_EQ(dialog.FileTypes()[0].description, "Archivos de Excel");
  dialog.Filter("A|*.a;*.b|B|*.*");
  ASSERT_EQ(dialog.FileTypes().size(), 2U);
  EXPECT_EQ(dialog.FileTypes()[1].patterns, "*.*");
  dialog.Filter("");
  EXPECT_TRUE(dialog.FileTypes().empty());
}

}  // namespace
}  // namespace velmar::controls
