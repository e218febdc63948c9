// Runs all tests of a room inside a Qt application, without a screen if the environment names no platform.

#include <gtest/gtest.h>

#include "qt/toolkit/Application.h"

int main(int count, char** words) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&count, words);
  const velmar::qt::Application application(count, words);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
