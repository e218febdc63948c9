#include "qt/views/ShownText.h"

#include <gtest/gtest.h>

namespace velmar::qt {
namespace {

TEST(ShownTextTest, CountsCharactersOnOneSideAndUnitsOnTheOther) {
  // A letter, one of two bytes, one of two units, a line end of two characters, a letter.
  const ShownText text("aÑ😀\r\nb", true);
  EXPECT_EQ(text.Text(), QString::fromUtf8("aÑ😀\nb"));
  const struct {
    long character;
    int position;
  } kPlaces[] = {{0, 0}, {1, 1}, {2, 2}, {3, 4}, {5, 5}, {6, 6}};
  for (const auto& place : kPlaces) {
    SCOPED_TRACE(place.character);
    EXPECT_EQ(text.Position(place.character), place.position);
    EXPECT_EQ(text.Character(place.position), place.character);
  }
  EXPECT_EQ(text.Position(4), 4) << "inside the line end";
  EXPECT_EQ(text.Position(99), 6);
  EXPECT_EQ(text.Character(3), 3) << "inside the surrogate pair";
  EXPECT_EQ(text.Character(99), 6);
}

TEST(ShownTextTest, TakesOverWhatWasEditedAndNothingElse) {
  const struct {
    const char* before;
    const char* edited;
    const char* after;
    bool lines;
    long maxLength;
  } kEdits[] = {
      {"", "a", "a", true, 0},
      {"abc", "aXbc", "aXbc", true, 0},
      {"abc", "ac", "ac", true, 0},
      {"a\nb\rc\r\nd", "a\nb\nc\nXd", "a\nb\rc\r\nXd", true, 0},
      {"ab", "a\nb", "a\r\nb", true, 0},
      {"a\r\nb", "ab", "ab", true, 0},
      // Two characters whose last units are the same, and two whose first are.
      {"x😀y", "x🤀y", "x🤀y", true, 0},
      {"x😀y", "x😁y", "x😁y", true, 0},
      {"ab", "aone\ntwob", "aoneb", false, 0},
      // Cut is what came in, not what stood behind it.
      {"abcde", "abXYZcde", "abXcde", true, 6},
      {"ñññ", "ñññ😀😀", "ñññ😀", false, 4},
      {"abcdef", "abXcdef", "abcdef", true, 6},
  };
  for (const auto& edit : kEdits) {
    SCOPED_TRACE(edit.edited);
    EXPECT_EQ(ShownText(edit.before, edit.lines).Edited(QString::fromUtf8(edit.edited), edit.maxLength),
              edit.after);
  }
}

TEST(ShownTextTest, KeepsBytesThatAreNoText) {
  const ShownText text(
      "a\xFF"
      "b",
      true);
  EXPECT_EQ(text.Text().size(), 3);
  EXPECT_EQ(text.Edited(text.Text() + "c", 0),
            "a\xFF"
            "bc");
}

}  // namespace
}  // namespace velmar::qt
