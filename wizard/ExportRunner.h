#pragma once

#include <functional>
#include <memory>

namespace velmar::wizard {

class frmExportacion;

/// The export of a wizard's selection, as the window sees it. One belongs to each window and ends with it.
class ExportRunner {
 public:
  virtual ~ExportRunner() = default;

  /// Exports the validated selection of the window, from the question for the file to the message at the end,
  /// and tells the user of failures itself. After a complete export it unloads the window.
  virtual void ExportarDatos() = 0;
  /// True while ExportarDatos works. It gives the message loop turns, so the user can act meanwhile. False
  /// again when it unloads the window.
  virtual bool IsRunning() const = 0;
  /// A timer of the window's array has fired.
  virtual void tmrExportacion_Timer(int index) = 0;
  /// Ends the export at its next safe point; the window stays open as it was.
  virtual void RequestCancel() = 0;
};

/// Makes the export of a window, which outlives it.
using ExportRunnerFactory = std::function<std::unique_ptr<ExportRunner>(frmExportacion& window)>;

}  // namespace velmar::wizard
