#include "platform/files/NamePattern.h"

#include <gtest/gtest.h>

namespace velmar::files {
namespace {

TEST(NamePattern, MatchesWholeNames) {
  struct Case {
    const char *pattern, *name;
    bool matches;
  };
  for (const Case& c : {Case{"Exportacion*.mdb", "ExportacionAux.mdb", true},
                        {"Exportacion*.mdb", "EXPORTACIONEXCEL10.MDB", true},
                        {"Exportacion*.mdb", "Exportacion.mdb", true},
                        {"Exportacion*.mdb", "Exportacion1.mdb.bak", false},
                        {"Exportacion*.mdb", "MiExportacion1.mdb", false},
                        {"Exportacion*.mdb", "Exportacion1xmdb", false},
                        {"año?.xls", "AÑO1.XLS", true},
                        {"an\u0303o?.xls", "Año1.xls", true},
                        {"a\u00F1o?.xls", "AN\u0303O1.xls", true},
                        {"ano?.xls", "año1.xls", false},
                        {"a?c", "añc", true},
                        {"a?c", "ac", false},
                        {"*a*b*", "xxaxxbxx", true},
                        {"*a*b", "abab", true},
                        {"*a*b", "aba", false},
                        {"*.*", "LEEME", true},
                        {"*", ".oculto", false},
                        {".*", ".oculto", true},
                        {"a[b]*", "a[b]c", true},
                        {"", "a", false},
                        {"**", "a", true}}) {
    SCOPED_TRACE(std::string(c.pattern) + " / " + c.name);
    EXPECT_EQ(NamePattern(c.pattern).Matches(c.name), c.matches);
  }
  EXPECT_TRUE(NamePattern::IsPattern("a?"));
  EXPECT_FALSE(NamePattern::IsPattern("a[1].mdb"));
}

}  // namespace
}  // namespace velmar::files
