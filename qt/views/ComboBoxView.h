#pragma once

#include <QComboBox>

#include "platform/controls/ComboBox.h"
#include "qt/views/ControlLink.h"
#include "qt/views/ListModel.h"

namespace velmar::qt {

/// Shows a combo box, which is borrowed. The wheel turns it only while it has the focus.
class ComboBoxView : public QComboBox, private ControlLink {
 public:
  ComboBoxView(controls::ComboBox& box, UserEvents events, QWidget* parent);

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Show(controls::Property what) override;

  controls::ComboBox& box_;
  ListModel model_;
};

}  // namespace velmar::qt
