#include "qt/views/FrameView.h"

#include <utility>

namespace velmar::qt {

FrameView::FrameView(controls::Frame& frame, UserEvents events, QWidget* parent)
    : QGroupBox(parent), ControlLink(frame, *this, std::move(events)), frame_(frame) {
  FrameView::Show(controls::Property::kCaption);
}

void FrameView::Show(controls::Property what) {
  if (what == controls::Property::kCaption) setTitle(QString::fromStdString(frame_.Caption()));
}

}  // namespace velmar::qt
