// The program velmar_sample_window as the system starts it.

#include <gtest/gtest.h>

#include <QProcess>

namespace velmar::sample {
namespace {

TEST(Program, TellsHowItIsCalledAndThatThereIsNoScreen) {
  const std::tuple<QStringList, const char*, int> kCalls[] = {{{}, "no-such-platform", 3},
                                                              {{"--ayuda"}, "no-such-platform", 0},
                                                              {{"--otra"}, "offscreen", 2},
                                                              {{"una", "otra"}, "offscreen", 2}};
  for (const auto& [words, platform, code] : kCalls) {
    qputenv("QT_QPA_PLATFORM", platform);
    QProcess program;
    program.start(VELMAR_WINDOW, words);
    EXPECT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitCode(), code) << platform << ' ' << words.size();
  }
}

}  // namespace
}  // namespace velmar::sample
