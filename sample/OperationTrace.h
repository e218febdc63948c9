#pragma once

#include <chrono>
#include <fstream>
#include <memory>
#include <string>

#include "platform/error/OperationObserver.h"

namespace velmar::sample {

/// Writes every operation on databases and files to a text file, for support: a line each with the time of
/// day (UTC), the kind and the subject, separated by tabs. Operations that repeat the one before are counted
/// on one line, passwords are left out, and each line is on its way to the disk before the next operation
/// begins.
class OperationTrace : public OperationObserver {
 public:
  /// Appends to the file. RuntimeError kPermissionDenied if it cannot be written.
  explicit OperationTrace(const std::string& path);
  ~OperationTrace() override;

  /// A trace to the file that the environment variable VELMAR_TRAZA names; nothing if it names none.
  static std::unique_ptr<OperationTrace> FromEnvironment();

  void Begins(Operation operation, std::string_view subject) override;

 private:
  void WriteRepeats();

  std::ofstream file_;
  std::string line_;
  long repeats_ = 0;
  Scope scope_{*this};
};

}  // namespace velmar::sample
