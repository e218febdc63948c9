#include "qt/toolkit/SaveDialog.h"

#include <QComboBox>
#include <QTemporaryDir>
#include <fstream>

#include "platform/error/RuntimeError.h"
#include "qt/toolkit/QtFixture.h"

namespace velmar::qt {
namespace {

using testing::Robot;

class SaveDialogs : public testing::QtFixture {
 protected:
  SaveDialogs() {
    settings.DefaultExt("xls");
    settings.DialogTitle("Indique el nombre del archivo");
    settings.Filter("Archivos de Excel |*.xls|");
    settings.InitDir(folder.path().toStdString());
    settings.CancelError(true);
    settings.Flags(controls::CommonDialog::kOverwritePrompt);
  }
  void Answer(const char* button) {
    user.InModal<MessageBox>("the question", [this, button](MessageBox& box) {
      EXPECT_TRUE(box.text().contains(folder.filePath("febrero.xls")));
      EXPECT_EQ(box.defaultButton()->text(), "&No");
      Robot::Press(box, button);
    });
  }
  /// The user saves under the name that stands there, or types one.
  void Save(const QString& name = {}) {
    user.InModal<SaveDialog>("the dialog", [name](SaveDialog& dialog) {
      if (!name.isEmpty()) dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
      Robot::Press(dialog, "Guardar");
    });
  }
  void ExpectChoice(const QString& name) {
    settings.ShowSave();
    EXPECT_EQ(QString::fromStdString(settings.FileName()), folder.filePath(name));
  }

  QTemporaryDir folder;
  controls::CommonDialog& settings = form->dialog;
};

TEST_F(SaveDialogs, AskBeforeAFileIsReplacedAlsoUnderItsDefaultExtension) {
  std::ofstream(folder.filePath("febrero.xls").toStdString()) << "x";
  Save("febrero");
  Answer("No");
  Save();
  Answer("Sí");
  ExpectChoice("febrero.xls");
  // The next time, name and folder stand there.
  settings.Flags(0);
  settings.InitDir("/");
  Save();
  ExpectChoice("febrero.xls");
}

TEST_F(SaveDialogs, HaveTheirSettingsAndRaiseTheErrorOfACancelledOne) {
  settings.InitDir("C:\\");
  user.InModal<SaveDialog>("the dialog", [](SaveDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Indique el nombre del archivo");
    EXPECT_EQ(dialog.findChild<QComboBox*>("fileTypeCombo")->currentText(), "Archivos de Excel (*.xls)");
    EXPECT_TRUE(dialog.directory().exists());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_THROW(settings.ShowSave(), RuntimeError);
}

}  // namespace
}  // namespace velmar::qt
