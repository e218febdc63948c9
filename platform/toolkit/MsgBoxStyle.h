#pragma once

#include <vector>

namespace velmar::toolkit {

/// A message box's style is the sum of its buttons and its icon.
enum MsgBoxStyle : long {
  kOkOnly = 0,
  kOkCancel = 1,
  kAbortRetryIgnore = 2,
  kYesNoCancel = 3,
  kYesNo = 4,
  kRetryCancel = 5,
  kButtonsMask = 7,
  kCritical = 16,
  kQuestion = 32,
  kExclamation = 48,
  kInformation = 64,
  kIconMask = 112,
};

/// The button that was pressed.
enum MsgBoxResult : long { kOk = 1, kCancel = 2, kAbort = 3, kRetry = 4, kIgnore = 5, kYes = 6, kNo = 7 };

/// The results that a style's buttons can give, from left to right; the first is the default.
std::vector<MsgBoxResult> MsgBoxButtons(long style);

/// True if the person has a choice.
bool IsQuestion(long style);

}  // namespace velmar::toolkit
