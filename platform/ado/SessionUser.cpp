#include "platform/ado/SessionUser.h"

#include <utility>

#include "platform/ado/Session.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace ADODB {

SessionUser::SessionUser(std::shared_ptr<Session> session) : session_(std::move(session)) {
  session_->Register(*this);
}

SessionUser::~SessionUser() {
  if (session_) session_->Unregister(*this);
}

void SessionUser::LetGo() noexcept {
  FreeStatements();
  session_.reset();
}

Session& SessionUser::Owner() const {
  if (!session_) {
    throw velmar::RuntimeError(velmar::kObjectClosed, "La operación no se permite si el objeto está cerrado.",
                               "ADODB.Recordset");
  }
  return *session_;
}

}  // namespace ADODB
