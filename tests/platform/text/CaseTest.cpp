#include "platform/text/Case.h"

#include <gtest/gtest.h>

#include "platform/text/Characters.h"

namespace velmar::text {
namespace {

TEST(Case, MapsEveryAlphabet) {
  EXPECT_EQ(LCase("DONACIÓN de ÁNGELES Ñ 12"), "donación de ángeles ñ 12");
  EXPECT_EQ(UCase("pingüino çedilla àèò ñ"), "PINGÜINO ÇEDILLA ÀÈÒ Ñ");
  EXPECT_EQ(LCase("ΑΒΓ ДОМ"), "αβγ дом");
}

TEST(Case, KeepsTheNumberOfCharacters) {
  for (const char* text : {"straße", "İstanbul", "ŉ ﬁ ΐ", "Ǆ"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(Len(UCase(text)), Len(text));
    EXPECT_EQ(Len(LCase(text)), Len(text));
    EXPECT_EQ(Len(FoldCase(text)), Len(text));
  }
}

TEST(Case, FoldingMakesBothSpellingsOne) {
  EXPECT_EQ(FoldCase("ÑANDÚ Σσς"), FoldCase("ñandú σΣσ"));
  EXPECT_NE(FoldCase("ano"), FoldCase("año"));
}

}  // namespace
}  // namespace velmar::text
