#include "platform/jet/Parser.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/error/RuntimeError.h"
#include "platform/jet/TestDatabase.h"

namespace velmar::jet {
namespace {

std::string Repeat(const std::string& text, int count) {
  std::string repeated;
  for (int i = 0; i < count; ++i) repeated += text;
  return repeated;
}

struct DeepRow {
  std::string open;
  std::string inner;
  std::string close;
  int fine;  // so many levels are read
};

const DeepRow kDeep[] = {
    {"SELECT ", "1", "", 0},
    {"(", "1", ")", 150},
    {"NOT ", "1", "", 150},
    {"- ", "1", "", 100},
    {"Abs(", "1", ")", 100},
    {"1 + (2 * ", "1", ")", 100},
    {"1 - ", "1", "", 200},
    {"(SELECT ", "1", ")", 60},
    {"Exists (SELECT * FROM t WHERE ", "1", ")", 60},
    {"1 = ALL (SELECT ", "1", ")", 60},
    {"IIf(1, 2, ", "1", ")", 90},
};

TEST(Parser, ReadsWhatIsNestedAndRefusesWhatIsTooDeep) {
  for (const DeepRow& row : kDeep) {
    SCOPED_TRACE(row.open);
    const auto nested = [&row](int levels) {
      return "SELECT " + Repeat(row.open, levels) + row.inner + Repeat(row.close, levels) + " FROM t";
    };
    if (row.fine > 0) {
      EXPECT_NO_THROW(Translated(nested(row.fine)));
    }
    for (const int levels : {1000, 20000}) {
      try {
        Translated(nested(levels));
        ADD_FAILURE() << levels << " levels were read";
      } catch (const RuntimeError& error) {
        EXPECT_EQ(3075, error.Number());
        EXPECT_TRUE(error.Span().has_value());
      }
    }
  }
}

TEST(Parser, RefusesDeepFromLists) {
  EXPECT_THROW(Translated("SELECT * FROM " + Repeat("(", 100000) + "t" + Repeat(")", 100000)), RuntimeError);
  EXPECT_THROW(Translated("SELECT * FROM " + Repeat("(SELECT * FROM ", 5000) + "t" + Repeat(")", 5000)),
               RuntimeError);
  std::string joins = "SELECT * FROM t";
  for (int i = 0; i < 5000; ++i) joins += " INNER JOIN t" + std::to_string(i) + " ON 1 = 1";
  EXPECT_THROW(Translated(joins), RuntimeError);
  EXPECT_THROW(Translated("SELECT * FROM t0 " + Repeat("INNER JOIN t1 ", 5000) + Repeat("ON 1 = 1 ", 5000)),
               RuntimeError);
}

TEST(Parser, LongFlatTextsRun) {
  TestDatabase database;
  database.Run("CREATE TABLE t (n LONG PRIMARY KEY, x TEXT(10))");
  for (const char* row : {"1, 'a'", "2, 'b'", "777777, 'c'"}) {
    database.Run("INSERT INTO t VALUES (" + std::string(row) + ")");
  }
  std::string list;
  for (int i = 0; i < 200000; ++i) list += (i == 0 ? "" : ",") + std::to_string(i * 7);
  EXPECT_EQ(std::vector<std::string>{"777777"},
            database.Run("SELECT n FROM t WHERE n IN (" + list + ")").rows);
  EXPECT_EQ((std::vector<std::string>{"1", "2"}),
            database.Run("SELECT n FROM t WHERE n NOT IN (" + list + ")").rows);

  const auto chain = [](const std::string& term, const std::string& word, int count) {
    std::string text = term;
    for (int i = 1; i < count; ++i) text += word + term;
    return text;
  };
  EXPECT_EQ(2U, database.Run("SELECT n FROM t WHERE " + chain("n < 5", " AND ", 5000)).rows.size());
  EXPECT_EQ(
      2U, database.Run("SELECT n FROM t WHERE " + chain("x = 'z'", " OR ", 5000) + " OR n < 5").rows.size());
  EXPECT_EQ("1000",
            database.Run("SELECT Len(" + chain("x", " & ", 1000) + ") FROM t WHERE n = 1").rows.at(0));
  EXPECT_EQ("1000", database.Run("SELECT " + chain("n", " + ", 1000) + " FROM t WHERE n = 1").rows.at(0));
}

}  // namespace
}  // namespace velmar::jet
