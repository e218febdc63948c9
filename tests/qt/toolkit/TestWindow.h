#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/toolkit/TestForm.h"
#include "qt/toolkit/FormWindow.h"

namespace velmar::testing {

/// A window with the plainest of views of a text box and a button.
class TestWindow : public qt::FormWindow {
 public:
  TestWindow(toolkit::TestForm& form, QWidget* parent) : FormWindow(form, parent) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(line);
    column->addWidget(button);
    QObject::connect(button, &QPushButton::clicked, this, [&form] { form.button.UserClick(); });
    Bind(form.box, *line);
    Bind(form.button, *button);
  }
  void paintEvent(QPaintEvent*) override { ++paints; }

  QLineEdit* line = new QLineEdit(this);
  QPushButton* button = new QPushButton("&Aceptar", this);
  int paints = 0;
};

}  // namespace velmar::testing
