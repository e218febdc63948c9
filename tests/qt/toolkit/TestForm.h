#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>
#include <string>
#include <vector>

#include "platform/controls/CommandButton.h"
#include "platform/controls/CommonDialog.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/Timer.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/MakeForm.h"
#include "platform/toolkit/Toolkit.h"
#include "qt/toolkit/FormWindow.h"

namespace velmar::testing {

/// A form with a text box, a default and a cancel button, which keeps a diary.
class TestForm : public toolkit::Form {
 public:
  TestForm(toolkit::Toolkit& toolkit, const std::string& name) : Form(toolkit, name) {
    Caption("Ventana " + name);
    HelpContextID(138);
    cmdAceptar.Caption("Aceptar");
    cmdAceptar.Default(true);
    cmdSalir.Caption("Salir");
    cmdSalir.Cancel(true);
    Add(txtDatos);
    Add(cmdAceptar);
    Add(cmdSalir);
    Add(tmrReloj);
    Add(dlgArchivo);
    cmdAceptar.TabIndex(1);
    cmdSalir.TabIndex(2);
    cmdAceptar.Click = [this] { diary.push_back("accept"); };
    cmdSalir.Click = [this] { Unload(); };
  }

  controls::TextBox txtDatos{"txtDatos"};
  controls::CommandButton cmdAceptar{"cmdAceptar"};
  controls::CommandButton cmdSalir{"cmdSalir"};
  controls::Timer tmrReloj{"tmrReloj"};
  controls::CommonDialog dlgArchivo{"dlgArchivo"};
  std::vector<std::string> diary;
  bool keepsOpen = false;

 protected:
  void Form_Load() override { diary.push_back("load"); }
  void Form_Activate() override { diary.push_back("activate"); }
  void Form_Unload(bool& Cancel) override {
    diary.push_back("unload");
    Cancel = keepsOpen;
  }
};

/// Its window, with the plainest of views.
class TestWindow : public qt::FormWindow {
 public:
  TestWindow(toolkit::Form& form, QWidget* parent) : FormWindow(form, parent) {
    auto& shown = dynamic_cast<TestForm&>(form);
    auto* column = new QVBoxLayout(this);
    auto* box = new QLineEdit(this);
    column->addWidget(box);
    Bind(shown.txtDatos, *box);
    for (controls::CommandButton* control : {&shown.cmdAceptar, &shown.cmdSalir}) {
      auto* button = new QPushButton(QString::fromStdString(control->Caption()), this);
      button->setAutoDefault(false);
      column->addWidget(button);
      QObject::connect(button, &QPushButton::clicked, this, [control] { control->UserClick(); });
      Bind(*control, *button);
    }
  }

  void paintEvent(QPaintEvent* event) override {
    ++paints;
    FormWindow::paintEvent(event);
  }

  int paints = 0;
};

inline std::unique_ptr<qt::FormWindow> MakeTestWindow(toolkit::Form& form, QWidget* parent) {
  return std::make_unique<TestWindow>(form, parent);
}

}  // namespace velmar::testing
