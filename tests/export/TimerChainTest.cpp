#include <gtest/gtest.h>

#include <chrono>
#include <set>

#include "export/PendingBlocks.h"
#include "export/TestOffice.h"

namespace velmar::testing {
namespace {

using namespace std::chrono_literals;
using enum exporting::Outcome;

struct Course {
  std::string notes;  ///< "+2" where the event of block 2 begins, "-2" where it has ended
  long rows;
  std::set<long> slow;  ///< accounts at which two seconds go by
  exporting::Outcome outcome = kFinished;
  std::ptrdiff_t lost = 0;  ///< rows behind the first block
  void (*atHundred)(TestOffice&) = [](TestOffice&) {};
};

void PrintTo(const Course& course, std::ostream* out) {
  *out << course.rows << " rows, " << course.slow.size() << " slow";
}

void Fail(TestOffice&) {
  throw RuntimeError(kTypeMismatch, "La cuenta no es válida.");
}

void Break(TestOffice& office) {
  office.window->tmrExportacion(1).Enabled(false);
}

const Course kCourses[] = {
    {"+0 -0 +1 -1 +2 -2 +3 -3 ", 24001, {}},
    {"+0 +1 +2 -2 -1 -0 +3 -3 ", 32000, {5, 10}},
    {"+0 +1 -1 +2 -2 -0 +3 -3 ", 32000, {5, 9000}},
    {"+0 +1 +2 +3 +4 +5 +6 +7 +8 +9 +10 +11 +12 +13 +14 +15 +16 +17 +18 +19 "
     "-19 -18 -17 -16 -15 -14 -13 -12 -11 -10 -9 -8 -7 -6 -5 -4 -3 -2 -1 -0 ",
     160000,
     {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}},
    {"+0 +1 -1 -0 +2 -2 ", 24000, {5}, kIncomplete, 8000, Fail},
    {"+0 -0 ", 24000, {}, kIncomplete, 16000, Break},
    {"+0 +1 +2 -2 -1 -0 ", 24000, {5, 50}, kCancelled, 24000, [](TestOffice& o) { o.run.RequestCancel(); }},
};

class TimerChain : public ::testing::TestWithParam<Course> {};

TEST_P(TimerChain, LaterBlocksRunInsideOneThatTakesLong) {
  const Course& course = GetParam();
  SCOPED_TRACE(course.notes);
  TestOffice office;
  office.SelectPeople();
  office.AddPeople(course.rows);
  office.codec->onDecode = [&](long decoded) {
    if (course.slow.count(decoded) != 0) office.clock.Advance(2000ms);
    if (decoded == 100) course.atHundred(office);
  };
  std::string notes;
  std::chrono::nanoseconds begun = -2000ms;
  office.window->timerFired = [&](int block) {
    EXPECT_GE(office.toolkit.Loop().Now() - begun, 2000ms);
    begun = office.toolkit.Loop().Now();
    notes += "+" + std::to_string(block) + " ";
    office.run.tmrExportacion_Timer(block);
    notes += "-" + std::to_string(block) + " ";
  };
  EXPECT_EQ(office.Export(), course.outcome) << office.run.Failure().Description();
  EXPECT_EQ(notes, course.notes);
  if (course.outcome == kCancelled) {
    EXPECT_LT(office.codec->decoded, 110) << "goes on although cancelled";
    EXPECT_EQ(office.Files(), (FileNames{"Gestion.mdb", "Informes.mdb"}));
    return;
  }
  Table expected = office.ExpectedPeople();
  expected.erase(expected.begin() + 8000, expected.begin() + 8000 + course.lost);
  EXPECT_EQ(office.Exported(), expected);
}

TEST(PendingBlocks, TakesNoNumberForAPartOfAnother) {
  controls::Timer holder("tmrExportacion");
  exporting::PendingBlocks pending(holder);
  for (const int block : {1, 11}) pending.Add(block);
  pending.Remove(1);
  EXPECT_FALSE(pending.Holds(1));
  EXPECT_TRUE(pending.Holds(11));
}

INSTANTIATE_TEST_SUITE_P(Courses, TimerChain, ::testing::ValuesIn(kCourses));

}  // namespace
}  // namespace velmar::testing
