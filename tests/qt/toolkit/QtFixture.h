#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/toolkit/MakeForm.h"
#include "qt/toolkit/Application.h"
#include "qt/toolkit/MessageBox.h"
#include "qt/toolkit/QtToolkit.h"
#include "qt/toolkit/Robot.h"
#include "qt/toolkit/TestWindow.h"

namespace velmar::testing {

/// A toolkit, two forms that are not shown yet, and a user.
class QtFixture : public ::testing::Test {
 protected:
  using Form = toolkit::TestForm;

  QtFixture() { events.clear(); }

  /// What the user does in a form's window.
  void Accept(const std::string& name) {
    user.InWindow(name, [](QWidget& window) { Robot::Press(window, "Aceptar"); });
  }
  void Close(const std::string& name) {
    user.InWindow(name, [](QWidget& window) { window.close(); });
  }

  qt::QtToolkit toolkit{dynamic_cast<qt::Application&>(*qApp), [](toolkit::Form& shown, QWidget* parent) {
                          return std::make_unique<TestWindow>(dynamic_cast<Form&>(shown), parent);
                        }};
  std::string events;
  std::shared_ptr<Form> form = toolkit::MakeForm<Form>(toolkit, events, "frmUno");
  std::shared_ptr<Form> inner = toolkit::MakeForm<Form>(toolkit, events, "frmDos");
  Robot user;
};

}  // namespace velmar::testing
