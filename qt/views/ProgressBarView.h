#pragma once

#include <QProgressBar>

#include "platform/controls/ProgressBar.h"
#include "qt/views/ControlLink.h"

namespace velmar::qt {

/// Shows a progress bar, in thousandths. An empty task shows as done. The bar is borrowed.
class ProgressBarView : public QProgressBar, private ControlLink {
 public:
  ProgressBarView(controls::ProgressBar& bar, UserEvents events, QWidget* parent);

 private:
  void Show(controls::Property what) override;

  controls::ProgressBar& bar_;
};

}  // namespace velmar::qt
