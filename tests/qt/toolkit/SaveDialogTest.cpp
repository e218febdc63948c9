#include "qt/toolkit/SaveDialog.h"

#include <QComboBox>
#include <QFileIconProvider>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <fstream>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "qt/toolkit/MessageBox.h"
#include "qt/toolkit/QtFixture.h"

namespace velmar::qt {
namespace {

using testing::Robot;

class SaveDialogs : public testing::QtFixture {
 protected:
  SaveDialogs() {
    controls::CommonDialog& settings = form->dlgArchivo;
    settings.DefaultExt("xls");
    settings.DialogTitle("Indique el nombre del archivo");
    settings.Filter("Archivos de Excel |*.xls|");
    settings.InitDir(folder_.path().toStdString());
    settings.CancelError(true);
    settings.Flags(controls::CommonDialog::kOverwritePrompt);
  }

  std::string In(const std::string& name) const {
    return folder_.filePath(QString::fromStdString(name)).toStdString();
  }
  void Type(SaveDialog& dialog, const std::string& name) {
    auto* line = dialog.findChild<QLineEdit*>("fileNameEdit");
    line->selectAll();
    QTest::keyClicks(line, QString::fromStdString(name));
    Robot::Press(dialog, "Guardar");
  }

  QTemporaryDir folder_;
};

TEST_F(SaveDialogs, HaveTheSettingsAndSpeakSpanish) {
  user.InModal<SaveDialog>("the dialog", [&](SaveDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Indique el nombre del archivo");
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.directory().absolutePath(), folder_.path());
    EXPECT_EQ(dialog.findChild<QComboBox*>("fileTypeCombo")->currentText().toStdString(),
              "Archivos de Excel (*.xls)");
    EXPECT_EQ(dialog.findChild<QLabel*>("fileNameLabel")->text().remove('&').toStdString(),
              "Nombre del archivo:");
    Type(dialog, "enero");
  });
  form->dlgArchivo.ShowSave();
  EXPECT_EQ(form->dlgArchivo.FileName(), In("enero.xls"));
}

TEST_F(SaveDialogs, TellFilesByTheirNamesWithoutReadingIntoThem) {
  std::ofstream(In("sin nombre")) << "%PDF-1.4\n";
  std::ofstream(In("hoja.xls")) << "x";
  user.InModal<SaveDialog>("the dialog", [&](SaveDialog& dialog) {
    const auto kind = [&](const char* file) {
      return dialog.iconProvider()->type(QFileInfo(folder_.filePath(file))).toStdString();
    };
    EXPECT_EQ(kind("sin nombre"), kind("otro que no existe"));
    EXPECT_NE(kind("hoja.xls"), kind("sin nombre"));
    EXPECT_FALSE(dialog.iconProvider()->icon(QFileInfo(folder_.filePath("hoja.xls"))).isNull());
    Type(dialog, "marzo");
  });
  form->dlgArchivo.ShowSave();
  EXPECT_EQ(form->dlgArchivo.FileName(), In("marzo.xls"));
}

TEST_F(SaveDialogs, AskBeforeAFileIsReplacedAlsoUnderItsDefaultExtension) {
  std::ofstream(In("febrero.xls")) << "x";
  user.InModal<SaveDialog>("the dialog", [&](SaveDialog& dialog) { Type(dialog, "febrero"); });
  user.InModal<MessageBox>("the question", [&](MessageBox& box) {
    EXPECT_NE(box.text().toStdString().find(In("febrero.xls")), std::string::npos);
    QTest::keyClick(&box, Qt::Key_Return);  // the default answer keeps the file
  });
  user.InModal<SaveDialog>("the dialog again", [](SaveDialog& dialog) { Robot::Press(dialog, "Guardar"); });
  user.InModal<MessageBox>("the question", [](MessageBox& box) { Robot::Press(box, "Sí"); });
  form->dlgArchivo.ShowSave();
  EXPECT_EQ(form->dlgArchivo.FileName(), In("febrero.xls"));
  EXPECT_TRUE(user.Done());

  form->dlgArchivo.Flags(0);
  user.InModal<SaveDialog>("the dialog", [&](SaveDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), folder_.path());
    Robot::Press(dialog, "Guardar");  // the last name stands there
  });
  form->dlgArchivo.ShowSave();
  EXPECT_EQ(form->dlgArchivo.FileName(), In("febrero.xls"));
}

TEST_F(SaveDialogs, RaiseTheErrorOfACancelledDialog) {
  form->dlgArchivo.InitDir("C:\\");
  user.InModal<SaveDialog>("the dialog", [](SaveDialog& dialog) {
    EXPECT_TRUE(dialog.directory().exists());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  try {
    form->dlgArchivo.ShowSave();
    ADD_FAILURE() << "cancelled";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), kDialogCancelled);
  }
}

}  // namespace
}  // namespace velmar::qt
