#include "platform/ado/ConnectionText.h"

#include <gtest/gtest.h>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace ADODB {
namespace {

TEST(ConnectionText, FindsValuesRegardlessOfCaseAndQuotes) {
  struct Case {
    const char* text;
    const char* key;
    const char* value;
  };
  const Case cases[] = {
      {"Provider=P;Data Source=/a/b.mdb", "data source", "/a/b.mdb"},
      {"  DATA SOURCE = /a b/c.mdb ; Mode=Read", "Data Source", "/a b/c.mdb"},
      {"Data Source='/a;b/c.mdb';X=1", "Data Source", "/a;b/c.mdb"},
      {"Data Source='it''s';X=1", "Data Source", "it's"},
      {"P=\"say \"\"hi\"\"; =x\" ;Data Source=f", "p", "say \"hi\"; =x"},
      {"Jet OLEDB:Database Password=a=b", "JET OLEDB:DATABASE PASSWORD", "a=b"},
      {"Data Source=one;data source=two", "Data Source", "two"},
      {";;Data Source=x;;", "Data Source", "x"},
      {"Data Source=Año.mdb;CLAVE Ñ=1", "clave ñ", "1"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    EXPECT_EQ(ConnectionText(each.text).Value(each.key), each.value);
  }
}

TEST(ConnectionText, TextParsesToTheSameValues) {
  for (const char* value :
       {"", "plain", " led by a blank", "ends with one ", "semi;colon", "'quoted'", "a\"b;\"c\""}) {
    SCOPED_TRACE(value);
    ConnectionText text("Provider=X;Unknown Key=kept");
    text.Set("data source", value).Set("PROVIDER", "Y");
    const ConnectionText again(text.Text());
    EXPECT_EQ(again.Value("Data Source"), value);
    EXPECT_EQ(again.Value("Provider"), "Y");
    EXPECT_EQ(again.Value("Unknown Key"), "kept");
  }
}

TEST(ConnectionText, RefusesWhatIsNoConnectionString) {
  struct Case {
    const char* text;
    std::size_t offset;
  };
  for (const Case& each : {Case{"Data Source", 0}, Case{"A=1;nonsense;B=2", 4}, Case{"A='open;B=2", 2},
                           Case{"A='x' y;B=2", 5}}) {
    SCOPED_TRACE(each.text);
    try {
      ConnectionText text(each.text);
      FAIL() << text.Text();
    } catch (const velmar::RuntimeError& error) {
      ASSERT_TRUE(error.Span());
      EXPECT_EQ(error.Span()->offset, each.offset);
    }
  }
  EXPECT_THROW(ConnectionText("Provider=X").DataSource(), velmar::RuntimeError);
}

}  // namespace
}  // namespace ADODB
