#include "platform/controls/User32.h"

#include <string>
#include <unordered_map>

#include "platform/controls/ListControl.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::controls {
namespace {

std::unordered_map<long, Control*>& Handles() {
  static std::unordered_map<long, Control*> handles;
  return handles;
}

}  // namespace

long SendMessageA(long hWnd, long message, long wParam, std::string_view text) {
  const auto* list = dynamic_cast<ListControl*>(ControlOf(hWnd));
  if (list == nullptr || message != LB_FINDSTRINGEXACT) {
    throw RuntimeError(kInvalidProcedureCall,
                       "El mensaje " + std::to_string(message) + " no se puede enviar al control " +
                           std::to_string(hWnd) + ": sólo se busca en listas.",
                       "SendMessageA");
  }
  return list->FindStringExact(text, wParam);
}

void ValidateRect(long hWnd) noexcept {
  if (Control* control = ControlOf(hWnd)) control->Validate();
}

void InvalidateRect(long hWnd) {
  if (Control* control = ControlOf(hWnd)) control->Invalidate();
}

Control* ControlOf(long hWnd) noexcept {
  const auto found = Handles().find(hWnd);
  return found == Handles().end() ? nullptr : found->second;
}

long RegisterHandle(Control& control) {
  static long last = 0;
  Handles().emplace(++last, &control);
  return last;
}

void ReleaseHandle(long hWnd) noexcept {
  Handles().erase(hWnd);
}

}  // namespace velmar::controls
