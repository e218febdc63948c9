#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/toolkit/Application.h"
#include "qt/toolkit/QtToolkit.h"
#include "qt/toolkit/Robot.h"
#include "qt/toolkit/TestForm.h"

namespace velmar::testing {

/// A toolkit, a form that is not shown yet, and a user.
class QtFixture : public ::testing::Test {
 protected:
  qt::Application& application = dynamic_cast<qt::Application&>(*QCoreApplication::instance());
  qt::QtToolkit toolkit{application, MakeTestWindow};
  std::shared_ptr<TestForm> form = toolkit::MakeForm<TestForm>(toolkit, "frmUno");
  Robot user;
};

}  // namespace velmar::testing
