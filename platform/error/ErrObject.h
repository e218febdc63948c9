#pragma once

#include <exception>
#include <string>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar {

/// The pending error of a routine that goes on with its next statement after a failure. The routine owns one,
/// runs each statement through Try and looks at Number where it tests for failure:
///
///     ErrObject Err;
///     Err.Try([&] { connection.Execute(sql); });
///     if (Err.Number() != 0) …
///
/// A later failure replaces an earlier one; a statement that succeeds leaves the pending error as it is.
class ErrObject {
 public:
  /// Runs the statement and keeps its failure. True if it succeeded.
  template <typename Statement>
  bool Try(Statement&& statement) {
    try {
      std::forward<Statement>(statement)();
      return true;
    } catch (const RuntimeError& error) {
      Set(error);
    } catch (const std::exception& error) {
      Set(RuntimeError(kInternalError, error.what()));
    }
    return false;
  }

  /// 0 when nothing is pending.
  long Number() const noexcept { return number_; }
  const std::string& Description() const noexcept { return description_; }
  const std::string& Source() const noexcept { return source_; }
  void Clear() noexcept;
  void Set(const RuntimeError& error);

 private:
  long number_ = 0;
  std::string description_;
  std::string source_;
};

}  // namespace velmar
