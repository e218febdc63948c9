#pragma once

#include <memory>

namespace ADODB {

class Session;

/// What lives on a session and must let go of it when it closes: cursors and writers.
class SessionUser {
 public:
  explicit SessionUser(std::shared_ptr<Session> session);
  virtual ~SessionUser();
  SessionUser(const SessionUser&) = delete;
  SessionUser& operator=(const SessionUser&) = delete;

  /// False once the session has been closed.
  bool IsOpen() const noexcept { return session_ != nullptr; }
  /// Called by the session when it closes.
  void LetGo() noexcept;
  /// Called by the session before it commits the rows that were written one by one.
  virtual void BeforeCommit() noexcept {}

 protected:
  /// kObjectClosed once the session has been closed.
  Session& Owner() const;
  /// Frees all engine statements; nothing of them may be used afterwards.
  virtual void FreeStatements() noexcept = 0;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace ADODB
