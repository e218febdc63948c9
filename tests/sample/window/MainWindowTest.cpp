#include "sample/window/MainWindow.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <fstream>

#include "qt/toolkit/Application.h"
#include "qt/toolkit/MessageBox.h"
#include "qt/toolkit/SaveDialog.h"
#include "qt/windows/MakeWindow.h"
#include "sample/SampleDatabase.h"
#include "sample/WorkbookReader.h"
#include "sample/window/OfficeUser.h"
#include "sample/window/WizardCall.h"

namespace velmar::sample {
namespace {

using testing::Robot;

TEST(MainWindows, ExportByMouseAndKeyboardAndTellWhatTheOfficeHoldsNow) {
  const SampleDatabase office(120);
  const std::string file = office.folder / "Socios.xls";
  SampleHost::Settings settings;
  settings.folder = office.folder.Path();
  OfficeToolkit toolkit(dynamic_cast<qt::Application&>(*QCoreApplication::instance()), qt::MakeWindow);
  WizardCall call(toolkit, settings);
  MainWindow main(toolkit, settings, [&] { call.Open(); });
  main.show();
  const auto tells = [&](const std::string& text) {
    const auto labels = main.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->text().toStdString() == text; });
  };
  const auto* templates = main.findChild<QLabel*>("Plantillas de exportación");
  const auto* openFolder = main.findChild<QPushButton*>("cmdCarpeta");
  EXPECT_TRUE(tells("Todavía no se ha exportado nada."));
  EXPECT_FALSE(openFolder->isEnabled());
  EXPECT_EQ(templates->text(), "6");
  std::ofstream(office.folder / "Antiguo.xls") << "not the last one";

  Robot user;
  user.InWindow("frmExportacion", [](QWidget& window) {
    OfficeUser::Take(window, "(COL) Colaboradores", "Código de colaborador");
    OfficeUser::Take(window, "(COL) Colaboradores", "Sexo");
    OfficeUser::Click(window, OfficeUser::Wizard(window).cmdExportar(wizard::ExportControls::kExport));
  });
  user.InModal<qt::SaveDialog>("the file dialog", [&](qt::SaveDialog& dialog) {
    dialog.setDirectory(QString::fromStdString(settings.folder));
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText("Socios");
    Robot::Press(dialog, "Guardar");
  });
  user.InModal<qt::MessageBox>("the report", [&](qt::MessageBox& box) {
    EXPECT_EQ(box.icon(), QMessageBox::Information) << box.text().toStdString();
    office.main->Execute("DELETE FROM ExportacionPlantillas WHERE Nombre = 'Modelo 182'");
    Robot::Press(box, "Aceptar");
  });
  Robot::Press(main, "Asistente de exportación…");

  const auto sheets = ReadWorkbook(file);
  EXPECT_EQ(sheets.at(0).size(), 121U);
  EXPECT_EQ(sheets.at(0).at(0), (std::vector<std::string>{"IDColaborador", "Sexo"}));
  EXPECT_TRUE(tells(file));
  EXPECT_TRUE(openFolder->isEnabled());
  EXPECT_EQ(templates->text(), "5");
  EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
}

}  // namespace
}  // namespace velmar::sample
