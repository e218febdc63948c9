#include "platform/files/NamePattern.h"

#include <gtest/gtest.h>

#include <vector>

namespace velmar::files {
namespace {

TEST(NamePattern, MatchesWholeNames) {
  struct Case {
    const char* pattern;
    std::vector<const char*> matching, others;
  };
  const Case cases[] = {
      {"Exporta*.mdb",
       {"EXPORTAEXCEL10.MDB", "Exporta.mdb"},
       {"Exporta1.mdb.bak", "MiExporta1.mdb", "Exporta1xmdb"}},
      {"an\u0303o?.xls", {"AÑO1.XLS"}, {"ano1.xls"}},
      {"a\u00F1o?.xls", {"AN\u0303O1.xls"}, {"ano1.xls"}},
      {"a?c", {"añc"}, {"ac"}},
      {"*a*b", {"abab"}, {"aba"}},
      {"*.*", {"LEEME"}, {".oculto"}},
      {".*", {".oculto"}, {"LEEME"}},
      {"a[b]*", {"a[b]c"}, {"ab"}},
      {"", {}, {"a"}},
  };
  for (const auto& [pattern, matching, others] : cases) {
    for (const char* name : matching) EXPECT_TRUE(NamePattern(pattern).Matches(name)) << name;
    for (const char* name : others) EXPECT_FALSE(NamePattern(pattern).Matches(name)) << name;
  }
  EXPECT_TRUE(NamePattern::IsPattern("a?") && NamePattern::IsPattern("*"));
  EXPECT_FALSE(NamePattern::IsPattern("a[1].mdb"));
}

}  // namespace
}  // namespace velmar::files
