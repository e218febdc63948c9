#pragma once

#include <csignal>
#include <string>
#include <utility>
#include <vector>

#include "platform/error/ErrorNumber.h"
#include "platform/error/OperationObserver.h"
#include "platform/error/RuntimeError.h"

namespace velmar::reliability {

/// Counts operations from 0, and lets some of them fail or end the process.
class Faults : public OperationObserver {
 public:
  enum class Kind { kNone, kOnce, kFromThereOn, kKill };

  explicit Faults(std::string target, Kind kind = Kind::kNone, long at = 0)
      : target_(std::move(target)), kind_(kind), at_(at) {}

  void Begins(Operation operation, std::string_view subject) override {
    const long number = count_++;
    if (operation != Operation::kReadRow && operation != Operation::kWriteRow) milestones_.push_back(number);
    const bool hit = kind_ == Kind::kFromThereOn ? number >= at_ : number == at_ && kind_ != Kind::kNone;
    if (hit) {
      if (kind_ == Kind::kKill) std::raise(SIGKILL);
      if (failed_.empty()) failed_ = std::string(NameOf(operation)) + " " + std::string(subject);
      throw RuntimeError(kDeviceIoError, "Fallo provocado en la operación " + std::to_string(number) + ".",
                         "prueba");
    }
    if (operation == Operation::kDeleteFile && subject == target_) targetDeleted_ = true;
  }

  long Count() const noexcept { return count_; }
  /// The numbers of the operations that are not about single rows.
  const std::vector<long>& Milestones() const noexcept { return milestones_; }
  /// The first operation that failed.
  const std::string& Failed() const noexcept { return failed_; }
  /// The file that was to be replaced is gone.
  bool TargetDeleted() const noexcept { return targetDeleted_; }

 private:
  std::string target_;
  Kind kind_;
  long at_;
  long count_ = 0;
  std::vector<long> milestones_;
  std::string failed_;
  bool targetDeleted_ = false;
};

}  // namespace velmar::reliability
