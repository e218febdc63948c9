#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "sample/host/SampleHost.h"
#include "sample/window/LastWorkbook.h"
#include "sample/window/OfficeToolkit.h"

class QFormLayout;
class QLabel;
class QPushButton;

namespace velmar::sample {

/// The sample host's window: what the databases of a folder hold, the workbook that was exported last, and
/// the way into the wizard.
class MainWindow : public QWidget {
 public:
  /// The toolkit is borrowed; `openWizard` returns when the wizard is closed. Failures are those of reading
  /// the databases.
  MainWindow(OfficeToolkit& toolkit, SampleHost::Settings settings, std::function<void()> openWizard);

  /// Reads again what the databases and the folder hold.
  void ShowOffice();

 private:
  QWidget* MakeSummary();
  QWidget* MakeLastWorkbook();
  QWidget* MakeButtons();
  void OpenWizard();
  void ShowLastWorkbook();

  OfficeToolkit& toolkit_;
  SampleHost::Settings settings_;
  std::function<void()> openWizard_;
  std::optional<LastWorkbook> last_;
  QFormLayout* counts_ = nullptr;
  QLabel* lastName_ = nullptr;
  QLabel* lastDetails_ = nullptr;
  QPushButton* openFolder_ = nullptr;
};

}  // namespace velmar::sample
