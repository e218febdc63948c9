#pragma once

#include <string>

namespace velmar::toolkit {

/// One thing that a ScriptedToolkit was asked to show.
struct Record {
  enum class Kind { kBox, kBeep, kPointer, kWindow, kRefresh, kMenu, kFileDialog, kHelp, kLostFailure };

  Kind kind;
  /// The box's text, the window's, menu's or dialog's name, the help file.
  std::string text;
  /// The box's or dialog's title, the window's caption.
  std::string title;
  /// The box's style, the pointer's shape, the dialog's flags, the help topic.
  long number = 0;
  /// The button pressed in a box, the menu entry chosen (-1: none), for a dialog 1 or, cancelled, 2.
  long result = 0;
};

}  // namespace velmar::toolkit
