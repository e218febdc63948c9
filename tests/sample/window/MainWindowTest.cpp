#include "sample/window/MainWindow.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include "platform/ado/Connection.h"
#include "platform/error/RuntimeError.h"
#include "qt/toolkit/Application.h"
#include "qt/toolkit/MessageBox.h"
#include "qt/toolkit/Robot.h"
#include "qt/toolkit/SaveDialog.h"
#include "qt/windows/MakeWindow.h"
#include "sample/DatabaseGenerator.h"
#include "sample/SampleFiles.h"
#include "sample/WorkbookReader.h"
#include "sample/window/OfficeUser.h"
#include "sample/window/WizardCall.h"

namespace velmar::sample {
namespace {

using testing::Robot;
using Controls = wizard::ExportControls;

class MainWindows : public ::testing::Test {
 protected:
  MainWindows() {
    GeneratorOptions options;
    options.folder = folder_.path().toStdString();
    options.collaborators = 120;
    DatabaseGenerator(options).Run();
    settings_.folder = options.folder;
    call_ = std::make_unique<WizardCall>(toolkit_, settings_);
    window_ = std::make_unique<MainWindow>(toolkit_, settings_, [this] { call_->Open(); });
    window_->show();
  }

  std::string Texts() const {
    std::string all;
    for (const auto* label : window_->findChildren<QLabel*>()) all += label->text().toStdString() + "\n";
    return all;
  }
  void OpenWizard() { Robot::Press(*window_, "Asistente de exportación…"); }

  QTemporaryDir folder_;
  OfficeToolkit toolkit_{dynamic_cast<qt::Application&>(*QCoreApplication::instance()), qt::MakeWindow};
  SampleHost::Settings settings_;
  std::unique_ptr<WizardCall> call_;
  std::unique_ptr<MainWindow> window_;
  Robot user_;
};

TEST_F(MainWindows, TellWhatTheOfficeHoldsAndFollowTheWizard) {
  EXPECT_EQ(window_->findChild<QLabel*>("Plantillas de exportación")->text(), "6");
  EXPECT_NE(Texts().find("Todavía no se ha exportado nada."), std::string::npos);
  EXPECT_FALSE(window_->findChild<QPushButton*>("cmdCarpeta")->isEnabled());

  user_.InWindow("frmExportacion", [&](QWidget& window) {
    const auto main = OpenDatabase(PathIn(settings_.folder, kMainFile));
    main->Execute("DELETE FROM ExportacionPlantillas WHERE Nombre = 'Modelo 182'");
    main->Execute("UPDATE Colaboradores SET Eliminado = -1");
    main->Close();
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
  });
  OpenWizard();
  EXPECT_EQ(window_->findChild<QLabel*>("Plantillas de exportación")->text(), "5");
  EXPECT_EQ(window_->findChild<QLabel*>("Colaboradores")->text(), "0");
}

TEST_F(MainWindows, ExportByMouseAndKeyboardToAWorkbookThatOthersRead) {
  const std::string file = PathIn(settings_.folder, "Socios.xls");
  user_.InWindow("frmExportacion", [](QWidget& window) {
    wizard::frmExportacion& form = OfficeUser::Wizard(window);
    OfficeUser::Take(window, "(COL) Colaboradores", "Código de colaborador");
    OfficeUser::Take(window, "(COL) Colaboradores", "Sexo");
    OfficeUser::View(window, form.txtFiltro).setFocus();
    for (const QChar letter : QString::fromUtf8("{Sexo} = `Mujer´")) {
      QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, QString(letter),
                          Qt::NoModifier);
    }
    EXPECT_EQ(form.txtFiltro.Text(), "{Sexo} = `Mujer´");
    form.msgSeleccionados.UserClick(2);
    OfficeUser::Click(window, form.cmdFiltro(Controls::kFilterAssign));
  });
  user_.InModal<qt::MessageBox>("the question",
                                [](qt::MessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
  user_.InWindow("frmExportacion", [](QWidget& window) {
    wizard::frmExportacion& form = OfficeUser::Wizard(window);
    EXPECT_EQ(form.msgSeleccionados.TextMatrix(2, 2), "{Sexo} = `Mujer´");
    OfficeUser::Click(window, form.cmdExportar(Controls::kExport));
  });
  user_.InModal<qt::SaveDialog>("the file dialog", [&](qt::SaveDialog& dialog) {
    dialog.setDirectory(folder_.path());
    auto* line = dialog.findChild<QLineEdit*>("fileNameEdit");
    line->selectAll();
    QTest::keyClicks(line, "Socios");
    Robot::Press(dialog, "Guardar");
  });
  user_.InModal<qt::MessageBox>("the report", [](qt::MessageBox& box) {
    EXPECT_EQ(box.icon(), QMessageBox::Information) << box.text().toStdString();
    QTest::keyClick(&box, Qt::Key_Return);
  });
  OpenWizard();
  EXPECT_TRUE(user_.Done());
  EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));

  const auto sheets = ReadWorkbook(file);
  ASSERT_EQ(sheets.size(), 1U);
  ASSERT_GT(sheets[0].size(), 10U);
  for (std::size_t row = 1; row < sheets[0].size(); ++row) EXPECT_EQ(sheets[0][row][1], "Mujer");
  EXPECT_NE(Texts().find(file), std::string::npos);
  EXPECT_TRUE(window_->findChild<QPushButton*>("cmdCarpeta")->isEnabled());
}

TEST_F(MainWindows, TellAFailureOfTheCallAndStay) {
  MainWindow window(toolkit_, settings_, [] { throw std::runtime_error("no library"); });
  window.show();
  user_.InModal<qt::MessageBox>("the failure", [&](qt::MessageBox& box) {
    EXPECT_NE(box.text().toStdString().find("no library"), std::string::npos);
    EXPECT_EQ(box.windowTitle().toStdString(), settings_.title);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  Robot::Press(window, "Asistente de exportación…");
  EXPECT_TRUE(window.isVisible());
  Robot::Press(window, "Salir");
  EXPECT_FALSE(window.isVisible());
}

TEST(WizardCalls, SayWhichLibraryIsMissing) {
  OfficeToolkit toolkit(dynamic_cast<qt::Application&>(*QCoreApplication::instance()), qt::MakeWindow);
  try {
    const WizardCall call(toolkit, {}, "libNoExiste.so");
    ADD_FAILURE() << "there is no such library";
  } catch (const RuntimeError& error) {
    EXPECT_NE(error.Description().find("libNoExiste.so"), std::string::npos);
  }
}

}  // namespace
}  // namespace velmar::sample
