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

TEST(Case, CanonicalFoldingKnowsEveryWayToWriteAnAccent) {
  EXPECT_EQ(FoldCanonical("PEN\u0303A \u00C9\u1E69"), FoldCanonical("pe\u00F1a e\u0301S\u0307\u0323"));
  EXPECT_EQ(FoldCanonical("Hoja1.XLS"), "hoja1.xls");
  EXPECT_NE(FoldCanonical("cana"), FoldCanonical("caña"));
}

}  // namespace
}  // namespace velmar::text
