#pragma once

#include <QPushButton>

#include "platform/controls/CommandButton.h"
#include "qt/views/ControlLink.h"
#include "qt/views/GlyphIcon.h"

namespace velmar::qt {

/// Shows a button, which is pressed with the mouse, the blank key or its access key. Enter and Esc are the
/// window's. The button is borrowed.
class CommandButtonView : public QPushButton, private ControlLink {
 public:
  CommandButtonView(controls::CommandButton& button, UserEvents events, QWidget* parent,
                    Glyph glyph = Glyph::kNone);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Show(controls::Property what) override;

  controls::CommandButton& button_;
};

}  // namespace velmar::qt
