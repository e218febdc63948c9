#include "platform/toolkit/MsgBoxStyle.h"

namespace velmar::toolkit {

std::vector<MsgBoxResult> MsgBoxButtons(long style) {
  switch (style & kButtonsMask) {
    case kOkCancel:
      return {kOk, kCancel};
    case kAbortRetryIgnore:
      return {kAbort, kRetry, kIgnore};
    case kYesNoCancel:
      return {kYes, kNo, kCancel};
    case kYesNo:
      return {kYes, kNo};
    case kRetryCancel:
      return {kRetry, kCancel};
    default:
      return {kOk};
  }
}

bool IsQuestion(long style) {
  return MsgBoxButtons(style).size() > 1;
}

}  // namespace velmar::toolkit
