#pragma once

#include <functional>
#include <memory>

#include "export/RunStage.h"
#include "host/interfaces/FailureReport.h"
#include "host/interfaces/HostApi.h"
#include "host/interfaces/HostApplication.h"
#include "platform/ado/Connection.h"
#include "platform/controls/CommonDialog.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/ProgressBar.h"
#include "platform/controls/Timer.h"
#include "platform/toolkit/Form.h"
#include "query/WhereClause.h"

namespace velmar::exporting {

/// The year by the machine's local calendar.
int CurrentYear();

/// What the window hands to its export runs. All that is referred to must outlive the ExportRun.
struct RunContext {
  std::shared_ptr<HostApplication> host;
  toolkit::Form& window;
  /// The connection to the work database. Each run replaces the object.
  std::shared_ptr<ADODB::Connection>& conAuxiliar;
  controls::ProgressBar& prgExportar;
  controls::CommonDialog& dlgExportar;
  /// Holds element 0; a run loads the others. The window wires every element's event to
  /// ExportRun::tmrExportacion_Timer with the element's index.
  controls::ControlArray<controls::Timer>& tmrExportacion;
  /// Makes the object of the host's API library.
  std::function<std::shared_ptr<HostApi>()> createApi;
  /// Makes an account codec.
  CodecFactory createCodec;
  /// Where the clause builders report their failures.
  FailureReport report;
  std::function<int()> currentYear = CurrentYear;
  /// Told of each stage as it begins; empty if nobody asks.
  std::function<void(RunStage)> stageBegins = {};

  void Begin(RunStage stage) const {
    if (stageBegins) stageBegins(stage);
  }
};

}  // namespace velmar::exporting
