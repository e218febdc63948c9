#pragma once

#include <QLabel>

#include "platform/controls/Label.h"
#include "qt/views/ControlLink.h"

namespace velmar::qt {

/// Shows a label as plain text. Its access key leads to the buddy, which the window sets. The label is
/// borrowed.
class LabelView : public QLabel, private ControlLink {
 public:
  LabelView(controls::Label& label, UserEvents events, QWidget* parent);

 private:
  void Show(controls::Property what) override;

  controls::Label& label_;
};

}  // namespace velmar::qt
