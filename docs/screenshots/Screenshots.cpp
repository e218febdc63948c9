// Makes the pictures of the documents: screenshots FOLDER

#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <filesystem>
#include <iostream>

#include "platform/controls/ProgressBar.h"
#include "qt/toolkit/Application.h"
#include "qt/toolkit/MessageBox.h"
#include "qt/toolkit/Robot.h"
#include "qt/toolkit/SaveDialog.h"
#include "qt/windows/MakeWindow.h"
#include "sample/DatabaseGenerator.h"
#include "sample/help/HelpTopic.h"
#include "sample/window/MainWindow.h"
#include "sample/window/OfficeUser.h"
#include "sample/window/ProgramIcon.h"
#include "sample/window/WizardCall.h"
#include "templates/frmPlantillas.h"
#include "wizard/frmDatos.h"

namespace velmar::sample {
namespace {

using testing::Robot;
using Controls = wizard::ExportControls;

QPalette DarkPalette() {
  const QColor window(45, 47, 51);
  const QColor text(230, 230, 230);
  QPalette palette(window);
  palette.setColor(QPalette::Base, QColor(30, 31, 34));
  palette.setColor(QPalette::AlternateBase, QColor(38, 40, 44));
  palette.setColor(QPalette::Highlight, QColor(46, 110, 180));
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
  }
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

class Pictures {
 public:
  explicit Pictures(QDir folder) : folder_(std::move(folder)) {}

  void Take(QWidget& window, const char* name) const {
    window.grab().save(folder_.filePath(QString(name) + ".png"));
  }
  /// The window with what has popped up over it.
  void Take(QWidget& window, QWidget& popup, const char* name) const {
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    painter.drawPixmap(popup.geometry().topLeft() - window.geometry().topLeft(), popup.grab());
    painter.end();
    picture.save(folder_.filePath(QString(name) + ".png"));
  }

 private:
  QDir folder_;
};

/// The walk through the program, from picture to picture.
class Walk {
 public:
  Walk(qt::Application& application, const QString& folder)
      : pictures_(QDir(folder)), toolkit_(application, qt::MakeWindow) {
    toolkit_.Help([](const std::string&, long topic) -> std::optional<QString> {
      const auto page = HelpTopic(topic);
      if (!page) return std::nullopt;
      return QString::fromUtf8(page->data(), static_cast<qsizetype>(page->size()));
    });
  }

  void Run() {
    const QTemporaryDir data(QDir::temp().filePath("oficina-XXXXXX"));
    GeneratorOptions options;
    folder_ = data.path().toStdString();
    options.folder = folder_;
    options.collaborators = 9000;
    DatabaseGenerator(options).Run();
    SampleHost::Settings settings;
    settings.folder = options.folder;
    WizardCall wizard(toolkit_, settings);
    MainWindow window(toolkit_, settings, [&wizard] { wizard.Open(); });
    window.show();
    Choose();
    WriteFilter();
    PickValue();
    LoadTemplate();
    ReadHelp();
    Export("Recibos del año");
    Robot::Press(window, "Asistente de exportación…");
    QCoreApplication::sendPostedEvents();
    pictures_.Take(window, "muestra");
  }

 private:
  void InWizard(std::function<void(QWidget&, wizard::frmExportacion&)> action) {
    user_.InWindow("frmExportacion", [action = std::move(action)](QWidget& window) {
      action(window, OfficeUser::Wizard(window));
    });
  }

  void Assign(long row, const std::string& filter) {
    InWizard([=](QWidget& window, wizard::frmExportacion& form) {
      form.msgSeleccionados.UserClick(row);
      form.txtFiltro.UserPaste(filter);
      OfficeUser::Click(window, form.cmdFiltro(Controls::kFilterAssign));
    });
    user_.InModal<qt::MessageBox>("the question", [this, row](qt::MessageBox& box) {
      if (row == 1) pictures_.Take(box, "pregunta");
      QTest::keyClick(&box, Qt::Key_Return);
    });
  }

  void Sort(long row) {
    InWizard([=](QWidget&, wizard::frmExportacion& form) {
      form.msgSeleccionados.UserClick(row);
      form.msgSeleccionados.UserMouseUp(2, 0, 0, 0);
    });
    InMenu([](QMenu& menu) {
      QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions()[2]).center());
    });
  }

  void InMenu(std::function<void(QMenu&)> action) {
    user_.When(
        "the menu", [](QWidget& window) { return window.objectName() == "mnuEmergente"; },
        [action = std::move(action)](QWidget& window) { action(dynamic_cast<QMenu&>(window)); });
  }

  void Choose() {
    InWizard([](QWidget& window, wizard::frmExportacion&) {
      for (const char* field : {"Código de colaborador", "Primer apellido", "Nombre o razón social",
                                "NIF o CIF", "Provincia de residencia"}) {
        OfficeUser::Take(window, "(COL) Colaboradores", field);
      }
      for (const char* field : {"Fecha de emisión", "Importe del recibo", "Concepto", "Cuenta bancaria"}) {
        OfficeUser::Take(window, "(REC) Recibos", field);
      }
    });
    Assign(1, "{Código de colaborador} <= `8000´");
    Assign(7, "{Importe del recibo} >= `10´");
    Sort(2);
    Sort(6);
    InWizard([this](QWidget& window, wizard::frmExportacion& form) {
      form.msgSeleccionados.UserClick(6);
      pictures_.Take(window, "seleccion");
      const QPalette light = QApplication::palette();
      QApplication::setPalette(DarkPalette());
      QCoreApplication::sendPostedEvents();
      pictures_.Take(window, "seleccion-oscura");
      QApplication::setPalette(light);
      QCoreApplication::sendPostedEvents();
    });
  }

  void WriteFilter() {
    InWizard([](QWidget& window, wizard::frmExportacion& form) {
      form.msgSeleccionados.UserClick(5);
      form.txtFiltro.UserPaste("{Provincia de residencia}");
      OfficeUser::DoubleClick(window, form.lstOperadores, "=");
      auto& grid = OfficeUser::View<QAbstractItemView>(window, form.msgSeleccionados);
      const QPoint place = grid.visualRect(grid.model()->index(4, 1)).center();
      QCursor::setPos(grid.viewport()->mapToGlobal(place));
      QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, place);
    });
    InMenu([this](QMenu& menu) {
      QTest::mouseMove(&menu, menu.actionGeometry(menu.actions()[5]).center());
      pictures_.Take(*QApplication::activeModalWidget(), menu, "filtro");
      QTest::keyClick(&menu, Qt::Key_Escape);
    });
  }

  void PickValue() {
    InWizard([](QWidget& window, wizard::frmExportacion& form) {
      form.txtFiltro.SelStart(29);
      form.txtFiltro.SelLength(6);
      OfficeUser::Click(window, form.cmdVerDatos);
    });
    user_.When(
        "the values",
        [](QWidget& window) {
          auto* shown = dynamic_cast<qt::FormWindow*>(&window);
          const auto* form = shown == nullptr ? nullptr : dynamic_cast<wizard::frmDatos*>(&shown->Shown());
          return form != nullptr && form->Enabled() && form->lstDatos.ListCount() > 0;
        },
        [this](QWidget& window) {
          auto& form = dynamic_cast<wizard::frmDatos&>(dynamic_cast<qt::FormWindow&>(window).Shown());
          OfficeUser::Click(window, form.optDatos(1));
          form.lstDatos.UserClick(3);
          pictures_.Take(window, "valores");
          QTest::keyClick(&window, Qt::Key_Return);
        });
  }

  void LoadTemplate() {
    InWizard([](QWidget& window, wizard::frmExportacion& form) {
      OfficeUser::Click(window, form.cmdExportar(Controls::kLoadTemplate));
    });
    user_.InWindow("frmPlantillas", [this](QWidget& window) {
      auto& form = dynamic_cast<templates::frmPlantillas&>(dynamic_cast<qt::FormWindow&>(window).Shown());
      form.lstPlantilla.UserClick(2);
      pictures_.Take(window, "plantillas");
      QTest::keyClick(&window, Qt::Key_Escape);
    });
  }

  void ReadHelp() {
    InWizard([](QWidget& window, wizard::frmExportacion& form) {
      OfficeUser::Click(window, form.cmdExportar(Controls::kHelp));
    });
    user_.When(
        "the help", [](QWidget& window) { return window.objectName() == "ayuda" && window.isVisible(); },
        [this](QWidget& window) {
          pictures_.Take(window, "ayuda");
          auto* text = window.findChild<QTextBrowser*>();
          text->scrollToAnchor("filtros");
          pictures_.Take(window, "ayuda-filtros");
          Robot::Press(window, "Cerrar");
        });
  }

  void Export(const QString& file) {
    InWizard([](QWidget& window, wizard::frmExportacion& form) {
      OfficeUser::Click(window, form.cmdExportar(Controls::kExport));
    });
    user_.InModal<qt::SaveDialog>("the file dialog", [this, file](qt::SaveDialog& dialog) {
      dialog.setDirectory(QString::fromStdString(folder_));
      auto* line = dialog.findChild<QLineEdit*>("fileNameEdit");
      line->setText(file);
      pictures_.Take(dialog, "guardar");
      Robot::Press(dialog, "Guardar");
    });
    user_.When(
        "the progress",
        [](QWidget& window) {
          if (window.objectName() != "frmExportacion") return false;
          const controls::ProgressBar& bar = OfficeUser::Wizard(window).prgExportar;
          return bar.Visible() && bar.Value() > (bar.Min() + bar.Max()) / 4;
        },
        [this](QWidget& window) { pictures_.Take(window, "exportando"); });
    user_.InModal<qt::MessageBox>("the report", [this](qt::MessageBox& box) {
      pictures_.Take(box, "terminado");
      QTest::keyClick(&box, Qt::Key_Return);
    });
  }

  Pictures pictures_;
  OfficeToolkit toolkit_;
  std::string folder_;
  Robot user_;
};

}  // namespace
}  // namespace velmar::sample

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "screenshots FOLDER\n";
    return 2;
  }
  ::testing::InitGoogleTest();
  velmar::qt::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setFont(QFont("DejaVu Sans", 9));
  QGuiApplication::setWindowIcon(velmar::sample::ProgramIcon());
  velmar::sample::Walk(application, argv[1]).Run();
  return ::testing::Test::HasFailure() ? 1 : 0;
}
