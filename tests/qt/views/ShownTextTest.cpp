#include "qt/views/ShownText.h"

#include <gtest/gtest.h>

namespace velmar::qt {
namespace {

TEST(ShownTextTest, CountsCharactersOnOneSideAndUnitsOnTheOther) {
  // A letter, one of two bytes, one of two units, a line end of two characters, a letter.
  const ShownText text("aÑ😀\r\nb", true);
  EXPECT_EQ(text.Text(), QString::fromUtf8("aÑ😀\nb"));
  // The fifth place is inside the line end, the last one behind the text.
  const int kPositions[] = {0, 1, 2, 4, 4, 5, 6, 6};
  // The fourth place is inside the surrogate pair.
  const long kCharacters[] = {0, 1, 2, 3, 3, 5, 6, 6};
  for (int place = 0; place < 8; ++place) {
    EXPECT_EQ(text.Position(place), kPositions[place]) << place;
    EXPECT_EQ(text.Character(place), kCharacters[place]) << place;
  }
}

TEST(ShownTextTest, TakesOverWhatWasEditedAndNothingElse) {
  const struct {
    const char* before;
    const char* edited;
    const char* after;
    bool lines;
    long maxLength;
  } kEdits[] = {
      {"a\nb\rc\r\nd", "a\nb\nc\nXd", "a\nb\rc\r\nXd", true, 0},
      {"a\xFF.", "a\uFFFD.c", "a\xFF.c", true, 0},
      {"a\r\nb", "ab", "ab", true, 0},
      // Two characters whose last units are the same, and two whose first are.
      {"x😀y", "x🤀y", "x🤀y", true, 0},
      {"x😀y", "x😁y", "x😁y", true, 0},
      {"ñññ", "ñññ😀😀", "ñññ😀", false, 4},
      {"abcdef", "aUVWXYf", "aUVWXf", true, 6},
  };
  for (const auto& edit : kEdits) {
    SCOPED_TRACE(edit.edited);
    EXPECT_EQ(ShownText(edit.before, edit.lines).Edited(QString::fromUtf8(edit.edited), edit.maxLength),
              edit.after);
  }
}

}  // namespace
}  // namespace velmar::qt
