// The program velmar_sample_window as the system starts it.

#include <gtest/gtest.h>

#include <QProcess>

namespace velmar::sample {
namespace {

int ExitCode(const QStringList& words, const char* platform) {
  QProcess program;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_QPA_PLATFORM", platform);
  environment.insert("DISPLAY", ":9999");
  program.setProcessEnvironment(environment);
  program.start(VELMAR_WINDOW, words);
  EXPECT_TRUE(program.waitForFinished(60000));
  return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

TEST(Program, EndsWithACodeOfItsOwnWhereThereIsNoScreen) {
  EXPECT_EQ(ExitCode({}, "no-such-platform"), 3);
  EXPECT_EQ(ExitCode({}, "xcb"), 3);
}

TEST(Program, TellsHowItIsCalled) {
  EXPECT_EQ(ExitCode({"--ayuda"}, "no-such-platform"), 0);
  EXPECT_EQ(ExitCode({"--otra"}, "offscreen"), 2);
  EXPECT_EQ(ExitCode({"una", "otra"}, "offscreen"), 2);
}

}  // namespace
}  // namespace velmar::sample
