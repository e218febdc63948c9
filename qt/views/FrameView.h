#pragma once

#include <QGroupBox>

#include "platform/controls/Frame.h"
#include "qt/views/ControlLink.h"

namespace velmar::qt {

/// Shows a frame; the views of the controls that it holds are its children. The frame is borrowed.
class FrameView : public QGroupBox, private ControlLink {
 public:
  FrameView(controls::Frame& frame, UserEvents events, QWidget* parent);

 private:
  void Show(controls::Property what) override;

  controls::Frame& frame_;
};

}  // namespace velmar::qt
