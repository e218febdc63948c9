#include <gtest/gtest.h>

#include <chrono>
#include <set>

#include "export/TestOffice.h"
#include "export/Workbook.h"

namespace velmar::testing {
namespace {

using namespace std::chrono_literals;
using exporting::Outcome;

/// Keeps a log of the blocks: "+2" where the event of block 2 begins, "-2" where it has ended.
class TimerChain : public ::testing::Test {
 protected:
  TimerChain() {
    office.SelectPeople();
    office.window->timerFired = [this](int block) {
      log.push_back("+" + std::to_string(block));
      begun.push_back(office.toolkit.Loop().Now());
      office.run->tmrExportacion_Timer(block);
      log.push_back("-" + std::to_string(block));
    };
  }

  void ExportAndCompare() {
    ASSERT_EQ(office.Export(), Outcome::kFinished) << office.run->Failure().Description();
    std::vector<std::vector<std::string>> rows;
    for (Sheet& sheet : ReadWorkbook(office.Path("Salida.xls"))) {
      rows.insert(rows.end(), sheet.rows.begin() + 1, sheet.rows.end());
    }
    EXPECT_EQ(rows, office.ExpectedPeople());
  }

  TestOffice office;
  std::vector<std::string> log;
  std::vector<std::chrono::nanoseconds> begun;
};

TEST_F(TimerChain, WorksOnBlocksInTurnWhenEachIsQuick) {
  office.AddPeople(24001);
  ExportAndCompare();
  EXPECT_EQ(log, (std::vector<std::string>{"+0", "-0", "+1", "-1", "+2", "-2", "+3", "-3"}));
  // Nobody waits, but each block begins two seconds behind the one before it, by the loop's own clock.
  for (std::size_t i = 1; i < begun.size(); ++i) EXPECT_EQ(begun[i] - begun[i - 1], 2000ms);
}

TEST_F(TimerChain, LaterBlocksRunInsideOneThatTakesLong) {
  office.AddPeople(32000);
  // The first block is overtaken by the second and that by the third; the fourth waits until they have ended.
  std::set<long> at{5, 10};
  office.codec->onDecode = [&](long decoded) {
    if (at.count(decoded) != 0) office.clock.Advance(2000ms);
  };
  ExportAndCompare();
  EXPECT_EQ(log, (std::vector<std::string>{"+0", "+1", "+2", "-2", "-1", "-0", "+3", "-3"}));
}

TEST_F(TimerChain, BlocksEndInAnyOrder) {
  office.AddPeople(32000);
  // The second block runs inside the first and ends there; the third begins inside the first as well.
  office.codec->onDecode = [&](long decoded) {
    if (decoded == 5 || decoded == 9000) office.clock.Advance(2000ms);
  };
  ExportAndCompare();
  EXPECT_EQ(log, (std::vector<std::string>{"+0", "+1", "-1", "+2", "-2", "-0", "+3", "-3"}));
}

TEST_F(TimerChain, TwentyBlocksOnTopOfOneAnother) {
  office.AddPeople(19 * 8000 + 1);
  office.codec->onDecode = [&](long decoded) {
    if (decoded % 50 == 49 && decoded < 19 * 50) office.clock.Advance(2000ms);
  };
  ExportAndCompare();
  ASSERT_EQ(log.size(), 40U);
  for (int block = 0; block < 20; ++block) {
    EXPECT_EQ(log[static_cast<std::size_t>(block)], "+" + std::to_string(block));
    EXPECT_EQ(log[static_cast<std::size_t>(39 - block)], "-" + std::to_string(block));
  }
}

TEST_F(TimerChain, GivesTheSameWhenWaitsAreNotSkipped) {
  office.AddPeople(24001);
  office.toolkit.Loop().SkipsIdleWaits(false);
  office.clock.tick = 700us;
  ExportAndCompare();
  EXPECT_EQ(log.size(), 8U);
  for (std::size_t i = 1; i < begun.size(); ++i) EXPECT_GE(begun[i] - begun[i - 1], 2000ms);
}

TEST_F(TimerChain, FailureInANestedBlockEndsThatBlockAlone) {
  office.AddPeople(24000);
  office.codec->onDecode = [&](long decoded) {
    if (decoded == 5) office.clock.Advance(2000ms);
    if (decoded == 100) throw RuntimeError(kTypeMismatch, "La cuenta no es válida.");
  };
  EXPECT_EQ(office.Export(), Outcome::kIncomplete);
  EXPECT_EQ(log, (std::vector<std::string>{"+0", "+1", "-1", "-0", "+2", "-2"}));
  EXPECT_EQ(ReadWorkbook(office.Path("Salida.xls"))[0].rows.size(), 16001U);
}

TEST_F(TimerChain, ChainThatBreaksEndsTheWait) {
  office.AddPeople(24000);
  office.codec->onDecode = [&](long decoded) {
    if (decoded == 10) office.window->tmrExportacion(1).Enabled(false);
  };
  EXPECT_EQ(office.Export(), Outcome::kIncomplete);
  EXPECT_EQ(log, (std::vector<std::string>{"+0", "-0"}));
  EXPECT_EQ(ReadWorkbook(office.Path("Salida.xls"))[0].rows.size(), 8001U);
  EXPECT_EQ(office.WorkFiles(), std::vector<std::string>{});
}

TEST_F(TimerChain, CancelInANestedBlockEndsThemAll) {
  office.AddPeople(24000);
  office.codec->onDecode = [&](long decoded) {
    if (decoded == 5 || decoded == 50) office.clock.Advance(2000ms);
    if (decoded == 100) office.run->RequestCancel();
  };
  EXPECT_EQ(office.Export(), Outcome::kCancelled);
  EXPECT_EQ(log, (std::vector<std::string>{"+0", "+1", "+2", "-2", "-1", "-0"}));
  EXPECT_EQ(office.Files(), (std::vector<std::string>{"Gestion.mdb", "Informes.mdb"}));
}

}  // namespace
}  // namespace velmar::testing
