#include "platform/ado/ConnectionText.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

TEST(ConnectionText, FindsValuesRegardlessOfCaseAndQuotesAndWritesThemAgain) {
  struct Case {
    const char* text;
    const char* key;
    const char* value;
  };
  const Case cases[] = {
      {"  DATA SOURCE = /a b/c.mdb ; Mode=Read", "Data Source", "/a b/c.mdb"},
      {"Data Source='/a;b/c.mdb';X=1", "Data Source", "/a;b/c.mdb"},
      {"Data Source='it''s';X=1", "Data Source", "it's"},
      {"P=\"say \"\"hi\"\"; =x\" ;Data Source=f", "p", "say \"hi\"; =x"},
      {"Jet OLEDB:Database Password=a=b", "JET OLEDB:DATABASE PASSWORD", "a=b"},
      {"Data Source=one;data source=two", "Data Source", "two"},
      {";;Data Source=' x';;", "Data Source", " x"},
      {"Data Source=Año.mdb;CLAVE Ñ=1", "clave ñ", "1"},
  };
  for (const Case& each : cases) {
    const ConnectionText read(each.text);
    EXPECT_EQ(read.Value(each.key), each.value);
    EXPECT_EQ(ConnectionText(read.Text()).Value(each.key), each.value) << read.Text();
  }
}

TEST(ConnectionText, RefusesWhatIsNoConnectionString) {
  for (const auto& [text, offset] : std::vector<std::pair<const char*, std::size_t>>{
           {"Data Source", 0}, {"A=1;nonsense;B=2", 4}, {"A='open;B=2", 2}, {"A='x' y;B=2", 5}}) {
    const auto failure = FailureIn([&] { ConnectionText read(text); });
    ASSERT_TRUE(failure.Span()) << text;
    EXPECT_EQ(failure.Span()->offset, offset) << text;
  }
}

}  // namespace
}  // namespace ADODB
