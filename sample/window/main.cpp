#include <QProgressDialog>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "qt/toolkit/Application.h"
#include "qt/windows/MakeWindow.h"
#include "sample/DatabaseGenerator.h"
#include "sample/help/HelpTopic.h"
#include "sample/window/DisplayCheck.h"
#include "sample/window/MainWindow.h"
#include "sample/window/OfficeFiles.h"
#include "sample/window/ProgramIcon.h"
#include "sample/window/WizardCall.h"

namespace velmar::sample {
namespace {

enum Exit { kDone = 0, kFailed = 1, kUsage = 2, kNoDisplay = 3 };

constexpr const char* kUsageText =
    "Uso: velmar_sample_window [CARPETA]\n"
    "  Muestra las bases de datos de CARPETA (si falta, out), que se crean si no existen, y abre desde ahí "
    "el\n"
    "  asistente de exportación. Termina con 3 si no hay pantalla.\n";

std::optional<QString> HelpPage(const std::string& /*file*/, long topic) {
  const auto page = HelpTopic(topic);
  if (!page) return std::nullopt;
  return QString::fromUtf8(page->data(), static_cast<qsizetype>(page->size()));
}

void MakeDatabases(const std::string& folder, const std::string& title) {
  if (HasOffice(folder)) return;
  QProgressDialog progress("Creando las bases de datos de ejemplo…", {}, 0, 0);
  progress.setWindowTitle(QString::fromStdString(title));
  progress.setMinimumDuration(0);
  progress.show();
  QCoreApplication::processEvents();
  progress.repaint();
  GeneratorOptions options;
  options.folder = folder;
  DatabaseGenerator(options).Run();
}

int Run(qt::Application& application, const std::string& folder) {
  OfficeToolkit toolkit(application, qt::MakeWindow);
  toolkit.Help(HelpPage);
  SampleHost::Settings settings;
  settings.folder = folder;
  // Without a window there is nothing to go on with.
  try {
    MakeDatabases(folder, settings.title);
    WizardCall wizard(toolkit, settings);
    MainWindow window(toolkit, settings, [&wizard] { wizard.Open(); });
    window.show();
    return QApplication::exec();
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << std::endl;
    toolkit.MsgBox("El programa no puede empezar y se cierra.\r\r" + std::string(failure.what()),
                   toolkit::kCritical, settings.title);
    return kFailed;
  }
}

}  // namespace
}  // namespace velmar::sample

int main(int argc, char** argv) {
  using namespace velmar::sample;
  const std::vector<std::string> words(argv + 1, argv + argc);
  for (const std::string& word : words) {
    if (word == "--ayuda" || word == "--help") {
      std::cout << kUsageText;
      return kDone;
    }
  }
  if (words.size() > 1 || (words.size() == 1 && words[0].starts_with("-"))) {
    std::cerr << kUsageText;
    return kUsage;
  }
  if (!HasDisplay(argc, argv)) {
    std::cerr << "No hay ninguna pantalla en la que mostrar la ventana.\n";
    return kNoDisplay;
  }
  velmar::qt::Application application(argc, argv);
  QGuiApplication::setWindowIcon(ProgramIcon());
  QGuiApplication::setDesktopFileName("velmar-muestra");
  const std::filesystem::path folder = words.empty() ? std::string("out") : words[0];
  return Run(application, std::filesystem::absolute(folder).lexically_normal().string());
}
