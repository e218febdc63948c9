#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar {

class HostApi;

/// Takes a failure that a routine has caught, with the routine's label, for example "GenerarSQLSELECT ()".
using FailureReport = std::function<void(const RuntimeError& failure, const std::string& routine)>;

/// The report of a form: makes the failure the current one and calls `VerError` with the routine's label, the
/// form's name and "VelmarExportacion". Without an API object the call itself fails with kObjectNotSet.
FailureReport ReportToHost(std::shared_ptr<HostApi> objApi, std::string form);

/// Runs the body of a routine with one handler. A failure goes to the report under the routine's label, and
/// the routine goes on behind the body. True if the body came to its end.
template <typename Body>
bool RunReporting(const FailureReport& report, const std::string& routine, Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const RuntimeError& failure) {
    if (report) report(failure, routine);
  } catch (const std::exception& failure) {
    if (report) report(RuntimeError(kInternalError, failure.what(), "VelmarExportacion"), routine);
  }
  return false;
}

}  // namespace velmar
