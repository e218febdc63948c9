#include "platform/files/NamePattern.h"

#include <gtest/gtest.h>

#include <utility>

namespace velmar::files {
namespace {

TEST(NamePattern, MatchesWholeNames) {
  using Pair = std::pair<const char*, const char*>;
  const Pair matching[] = {{"Exporta*.mdb", "EXPORTAEXCEL10.MDB"},
                           {"Exporta*.mdb", "Exporta.mdb"},
                           {"an\u0303o?.xls", "AÑO1.XLS"},
                           {"a\u00F1o?.xls", "AN\u0303O1.xls"},
                           {"a?c", "añc"},
                           {"*a*b", "abab"},
                           {"*.*", "LEEME"},
                           {".*", ".oculto"},
                           {"a[b]*", "a[b]c"},
                           {"a*", "A"}};
  const Pair others[] = {{"Exporta*.mdb", "Exporta1.mdb.bak"},
                         {"Exporta*.mdb", "MiExporta1.mdb"},
                         {"Exporta*.mdb", "Exporta1xmdb"},
                         {"ano?.xls", "año1.xls"},
                         {"a?c", "ac"},
                         {"*a*b", "aba"},
                         {"*", ".oculto"},
                         {"", "a"}};
  for (const auto& [pattern, name] : matching) EXPECT_TRUE(NamePattern(pattern).Matches(name)) << name;
  for (const auto& [pattern, name] : others) EXPECT_FALSE(NamePattern(pattern).Matches(name)) << name;
  EXPECT_TRUE(NamePattern::IsPattern("a?") && NamePattern::IsPattern("*"));
  EXPECT_FALSE(NamePattern::IsPattern("a[1].mdb"));
}

}  // namespace
}  // namespace velmar::files
