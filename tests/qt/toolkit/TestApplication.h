#pragma once

#include <gtest/gtest.h>

#include "qt/toolkit/Application.h"

namespace velmar::testing {

/// Runs all tests inside a Qt application on the platform that the environment names, without a screen if it
/// names none.
inline int RunQtTests(int& count, char** words) {
  qputenv("QT_QPA_PLATFORM",
          qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? qgetenv("QT_QPA_PLATFORM") : "offscreen");
  ::testing::InitGoogleTest(&count, words);
  const qt::Application application(count, words);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}

}  // namespace velmar::testing
