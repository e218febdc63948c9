#pragma once

#include <QRadioButton>

#include "platform/controls/OptionButton.h"
#include "qt/views/ControlLink.h"

namespace velmar::qt {

/// Shows an option button. The arrow keys choose among the options beside it. The button is borrowed.
class OptionButtonView : public QRadioButton, private ControlLink {
 public:
  OptionButtonView(controls::OptionButton& button, UserEvents events, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  /// Which one is chosen is the control's to say.
  void nextCheckState() override {}

 private:
  void Show(controls::Property what) override;
  void Choose();
  void ChooseBeside(int step);

  controls::OptionButton& button_;
};

}  // namespace velmar::qt
