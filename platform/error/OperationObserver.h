#pragma once

#include <string_view>

#include "platform/error/Operation.h"

namespace velmar {

/// Is told of every operation on databases and files before it happens: for a trace, and for tests that make
/// operations fail. Rows and pieces of files come one by one, so an observer has to be quick.
///
/// One observer serves each module (a program, or a component that it loads as a library), on one thread.
class OperationObserver {
 public:
  virtual ~OperationObserver() = default;

  /// Throws RuntimeError to have the operation fail; then it does not happen. The subject is valid during the
  /// call only, and may hold a password between ";pwd=" and "]".
  virtual void Begins(Operation operation, std::string_view subject) = 0;

  /// Observes for the length of a scope. The observer is borrowed.
  class Scope {
   public:
    explicit Scope(OperationObserver& observer) noexcept : previous_(current_) { current_ = &observer; }
    ~Scope() { current_ = previous_; }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    OperationObserver* previous_;
  };

  /// For the platform: the operation is about to happen. Never from where nothing may be thrown.
  static void Announce(Operation operation, std::string_view subject) {
    if (current_ != nullptr) [[unlikely]]
      current_->Begins(operation, subject);
  }

 private:
  static inline OperationObserver* current_ = nullptr;
};

}  // namespace velmar
