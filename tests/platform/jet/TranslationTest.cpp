#include "platform/jet/Translation.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/error/ErrorNumber.h"
#include "platform/jet/NameMap.h"
#include "platform/jet/TestDatabase.h"
#include "platform/text/Search.h"

namespace velmar::jet {
namespace {

TEST(Translation, AsksForTheDatabases) {
  std::string asked;
  const auto aliases = [&asked](const std::string& path, const std::string& password) {
    asked += path + "|" + password + "\n";
    return path == "own.mdb" ? "main" : path.substr(0, 1);
  };
  const auto translation =
      Translate("SELECT * INTO [own.mdb;pwd=x;Y].T FROM [B.MDB].U, [;DATABASE=c d.mdb;PWD=z].[V w]", aliases);
  EXPECT_EQ("own.mdb|x;Y\nB.MDB|\nc d.mdb|z\n", asked);
  EXPECT_EQ("main", translation.target->alias);
  EXPECT_EQ(R"(SELECT * FROM "B"."U", c."V w")", translation.sql);
}

TEST(Translation, TellsASheet) {
  const auto translation =
      Translated("INSERT INTO [Excel 8.0;HDR=YES;DATABASE=C:\\a b.xls].[Hoja1$] (A, B) VALUES (1, 'x')");
  EXPECT_EQ(StatementKind::kInsertSelect, translation.kind);
  EXPECT_TRUE(translation.target->excel);
  EXPECT_EQ("C:\\a b.xls", translation.target->excelFile);
  EXPECT_EQ("Hoja1", translation.target->table);
  EXPECT_EQ((std::vector<std::string>{"A", "B"}), translation.target->columns);
  EXPECT_EQ("SELECT 1, 'x'", translation.sql);
  for (const char* text :
       {"UPDATE [Excel 8.0;DATABASE=a.xls].[Hoja1] SET A = 1", "SELECT * INTO [Excel 8.0;HDR=NO].X FROM T",
        "SELECT * INTO [Excel 8.0;HDR=NO;DATABASE=a.xls].X FROM T"}) {
    SCOPED_TRACE(text);
    EXPECT_THROW(Translated(text), RuntimeError);
  }
}

struct TypeRow {
  std::string_view expression;
  std::string_view type;
};

TEST(Translation, TypesOfColumns) {
  for (const TypeRow& row : {
           TypeRow{"'a'", "TEXT"},
           TypeRow{"a.b", ""},
           TypeRow{"b & 1", "TEXT"},
           TypeRow{"Left(b, 1) + '/'", "TEXT"},
           TypeRow{"b + '/'", ""},
           TypeRow{"1 + 2", "INTEGER"},
           TypeRow{"1.5 * 2", "DOUBLE"},
           TypeRow{"CCur(b) + 1", "CURRENCY"},
           TypeRow{"CCur(b) * 0.5", "CURRENCY"},
           TypeRow{"Sum(CCur(b))", "CURRENCY"},
           TypeRow{"Count(*)", "INTEGER"},
           TypeRow{"b = 1", "BIT"},
           TypeRow{"Not b", "BIT"},
           TypeRow{"#1/1/2024# + 1", "DATETIME"},
           TypeRow{"Date() - #1/1/2024#", "DOUBLE"},
           TypeRow{"IIf(b, 'x', Null)", "TEXT"},
           TypeRow{"IIf(b, 'x', 1)", ""},
           TypeRow{"Nz(Null, 1)", "INTEGER"},
           TypeRow{"Switch(b, 1, c, 2)", "INTEGER"},
           TypeRow{"b / 2", "DOUBLE"},
           TypeRow{"b Mod 2", "INTEGER"},
           TypeRow{"-True", "BIT"},
           TypeRow{"Null", ""},
       }) {
    SCOPED_TRACE(row.expression);
    const auto translation = Translated("SELECT " + std::string(row.expression) + " AS C FROM a");
    ASSERT_EQ(1U, translation.columns.size());
    EXPECT_EQ(row.type, translation.columns[0].type);
    EXPECT_EQ("C", translation.columns[0].name);
  }
  EXPECT_TRUE(Translated("SELECT 1, t.* FROM t").columns.empty());
}

TEST(Translation, LeadsBackToTheJetText) {
  const std::string text = "SELECT Año, [Otro campo] FROM Tabla WHERE Año = Left(Otro, 2)";
  const auto translation = Translated(text);
  for (const std::string name : {"Otro campo", "Tabla", "Otro\","}) {
    const auto at = translation.sql.find("\"" + name);
    const auto span = translation.SourceOf(at + 1);
    ASSERT_TRUE(span.has_value());
    const std::string shown = text.substr(span->offset, span->length);
    EXPECT_NE(std::string::npos, shown.find(name.substr(0, 4))) << shown;
  }
}

TEST(Translation, FindsStoredNamesInAnyCase) {
  EXPECT_FALSE(NeedsNameMap("SELECT Nombre FROM T WHERE Nombre = 'Año'"));
  EXPECT_TRUE(NeedsNameMap("SELECT año FROM T"));
  TestDatabase database;
  database.Run("CREATE TABLE Campañas (Año LONG, [AÑO 2] LONG)");
  database.Run("INSERT INTO Campañas VALUES (1, 2)");
  NameMap names;
  for (const char* name : {"Campañas", "Año", "AÑO 2"}) names.Add(name);
  EXPECT_EQ(
      "1 | 2",
      database.Run("SELECT CAMPAÑAS.aÑo, [Año 2] FROM campañas WHERE [campañas].AÑO = 1", &names).rows.at(0));
  names.Add("AÑO");
  EXPECT_EQ("AÑO", names.Spelling("AÑO"));
  EXPECT_EQ("Año", names.Spelling("aÑO"));
  EXPECT_EQ("Mes", names.Spelling("Mes"));
}

TEST(Translation, ComposesTablesAndInserts) {
  TargetTable target;
  target.alias = "ext1";
  target.table = "a\"b";
  EXPECT_EQ(R"(CREATE TABLE ext1."a""b" ("x y" TEXT(5) COLLATE JET, "z" COLLATE JET))",
            CreateTableText(target, {{"x y", "TEXT(5)"}, {"z", ""}}));
  EXPECT_EQ(R"(INSERT INTO ext1."a""b" ("x y", "z") SELECT 1, 2)",
            InsertText(target, {"x y", "z"}, "SELECT 1, 2"));
  EXPECT_EQ(R"(INSERT INTO ext1."a""b" SELECT 1)", InsertText(target, {}, "SELECT 1"));
}

// Names that break a text put together without quoting. $t, $a and $b are put in.
constexpr std::string_view kSweep[] = {
    "CREATE TABLE [$t] ([$a] LONG PRIMARY KEY, [$b] TEXT(50) NOT NULL)",
    "CREATE INDEX [$b] ON [$t] ([$b] DESC)",
    "INSERT INTO [$t] ([$a], [$b]) VALUES (1, 'uno')",
    "INSERT INTO [$t] SELECT [$t].[$a] + 1 AS [$a], 'dos' AS [$b] FROM [$t]",
    "UPDATE [$t] SET [$t].[$b] = UCase([$b]) WHERE [$a] = 2",
    "UPDATE [$t] AS [$b] INNER JOIN [$t] AS [$a] ON [$a].[$a] = [$b].[$a] SET [$b].[$b] = [$a].[$b] & '!'",
    "SELECT [$b] AS [$t], [$a] FROM [$t] AS [$b] WHERE [$b].[$b] LIKE '%O!' OR [$b].[$a] IN (SELECT [$a] "
    "FROM [$t]) ORDER BY [$t]",
    "SELECT Max([$t].[$b]) AS [$a] FROM (SELECT TOP 2 * FROM [$t]) AS [$t] GROUP BY [$t].[$a]",
    "DELETE [$t] FROM (SELECT TOP 1 * FROM [$t]) AS [$a]",
    "DROP INDEX [$b] ON [$t]",
    "ALTER TABLE [$t] ADD COLUMN [$t 2] MEMO",
    "DROP TABLE [$t]",
};

TEST(Translation, AwkwardNames) {
  struct Names {
    const char* table;
    const char* first;
    const char* second;
  };
  for (const Names& names :
       {Names{"con blancos", " delante", "detrás "}, Names{"it's", "a''b", "'"},
        Names{"di \"hola\"", "\"", "\"\""}, Names{"Select", "From", "Group By"},
        Names{"Ñandú", "año", "AÑOS"}, Names{"a.b", "c;d", "--e"}, Names{"1x", "2", "$#@!"},
        Names{"rowid_", "x, y", "(z)"}, Names{"main", "sqlite", "NULL"}, Names{"日本", "☃", "a\tb"},
        Names{"%_", "?1", ":n"}}) {
    SCOPED_TRACE(names.table);
    TestDatabase database;
    for (const std::string_view statement : kSweep) {
      std::string text = text::Replace(statement, "$t", names.table);
      text = text::Replace(text::Replace(text, "$a", names.first), "$b", names.second);
      SCOPED_TRACE(text);
      ASSERT_NO_THROW({
        const auto rows = database.Run(text).rows;
        if (statement.starts_with("SELECT [$b]")) {
          EXPECT_EQ((std::vector<std::string>{"'DOS!' | 2", "'uno!' | 1"}), rows);
        }
      });
    }
  }
}

}  // namespace
}  // namespace velmar::jet
