#include "platform/text/Case.h"

#include <gtest/gtest.h>

#include "platform/text/Characters.h"

namespace velmar::text {
namespace {

TEST(Case, MapsEveryAlphabet) {
  EXPECT_EQ(LCase("DONACIÓN de Ñ AZ az @[`{ ΑΒΓ ДОМ"), "donación de ñ az az @[`{ αβγ дом");
  EXPECT_EQ(UCase("AZ az pingüino çedilla àèò ñ @[`{"), "AZ AZ PINGÜINO ÇEDILLA ÀÈÒ Ñ @[`{");
  EXPECT_EQ(LCase("€𝄞Ñ\xF1O\xC3"), "€𝄞ñ\uFFFDo\uFFFD") << "broken bytes change";
  EXPECT_EQ(FoldCase("ÑANDÚ Σσς"), FoldCase("ñandú σΣσ"));
}

TEST(Case, KeepsTheNumberOfCharacters) {
  for (const char* text : {"straße", "İstanbul", "ŉ ﬁ ΐ", "Ǆ"}) {
    for (const std::string& mapped : {UCase(text), LCase(text), FoldCase(text)}) {
      EXPECT_EQ(Len(mapped), Len(text)) << text;
    }
  }
}

TEST(Case, CanonicalFoldingKnowsEveryWayToWriteAnAccent) {
  EXPECT_EQ(FoldCanonical("PEN\u0303A \u00C9\u1E69"), FoldCanonical("pe\u00F1a e\u0301S\u0307\u0323"));
  EXPECT_EQ(FoldCanonical("\u0130zmir"), FoldCanonical("i\u0307ZMIR"));
  EXPECT_EQ(FoldCanonical("\u1FBC\u0301"), FoldCanonical("\u1FB3\u0301"));
  EXPECT_EQ(FoldCanonical("Hoja1.XLS"), "hoja1.xls");
  EXPECT_NE(FoldCanonical("cana"), FoldCanonical("caña"));
}

}  // namespace
}  // namespace velmar::text
