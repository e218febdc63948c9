#include "platform/jet/Engine.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/error/RuntimeError.h"
#include "platform/jet/FunctionTable.h"
#include "platform/jet/TestDatabase.h"

namespace velmar::jet {
namespace {

TEST(Engine, KnowsEveryFunctionOfTheTable) {
  TestDatabase database;
  database.Run("CREATE TABLE t (n LONG)");
  for (const Function& function : AllFunctions()) {
    SCOPED_TRACE(function.name);
    for (std::size_t count = function.least; count <= std::min<std::size_t>(function.most, 6); ++count) {
      if (function.form == FunctionForm::kSwitch && count % 2 != 0) continue;
      std::string text = "SELECT " + std::string(function.name) + "(";
      for (std::size_t i = 0; i < count; ++i) text += i == 0 ? "n" : ", n";
      text += ") AS x FROM t";
      if (IsAggregate(function)) {
        EXPECT_EQ(1U, database.Run(text).rows.size());
      } else {
        EXPECT_NO_THROW(database.Run(text));
      }
    }
  }
}

TEST(Engine, NamesAreNeverTakenForTexts) {
  TestDatabase database;
  database.Run("CREATE TABLE t (n LONG)");
  EXPECT_THROW(database.Run("SELECT [nadie] FROM t"), RuntimeError);
  EXPECT_THROW(database.Sql("SELECT \"nadie\""), RuntimeError);
}

TEST(Engine, ComparesAndIndexesWithoutRegardToCase) {
  TestDatabase database;
  database.Run("CREATE TABLE t (x TEXT(10) PRIMARY KEY, n LONG)");
  database.Run("INSERT INTO t VALUES ('Ñu', 1)");
  EXPECT_THROW(database.Run("INSERT INTO t VALUES ('ÑU', 2)"), RuntimeError);
  database.Run("INSERT INTO t VALUES ('Nu', 3)");
  // The plan must go through the key: the collation of a bare column is that of its index.
  const Translation translation = Translated("SELECT n FROM t WHERE x = 'ñU'");
  const auto plan = database.Sql("EXPLAIN QUERY PLAN " + translation.sql).rows.at(0);
  EXPECT_NE(std::string::npos, plan.find("SEARCH")) << plan;
  EXPECT_EQ("1", database.Run(translation).rows.at(0));
}

TEST(Engine, KeysAndOrderOfArrivalNeedNoSorting) {
  TestDatabase database;
  database.Run("CREATE TABLE a (k LONG PRIMARY KEY, x TEXT(10))");
  database.Run("CREATE TABLE b (k LONG PRIMARY KEY, a LONG)");
  const auto plan = [&database](const std::string& text) {
    std::string shown;
    for (const std::string& row : database.Sql("EXPLAIN QUERY PLAN " + Translated(text).sql).rows)
      shown += row + "\n";
    return shown;
  };
  EXPECT_EQ(std::string::npos, plan("SELECT * FROM a").find("TEMP B-TREE"));
  EXPECT_EQ(std::string::npos, plan("SELECT TOP 8000 * FROM a").find("TEMP B-TREE"));
  for (const char* text : {"SELECT * FROM b LEFT JOIN a ON b.a = a.k WHERE b.k = 5",
                           "SELECT * FROM a WHERE k IN (1, 2) AND x LIKE 'a%'"}) {
    EXPECT_NE(std::string::npos, plan(text).find("SEARCH main.a")) << plan(text);
  }
}

}  // namespace
}  // namespace velmar::jet
