#include "platform/ado/EngineFailure.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/ado/TestFolder.h"
#include "platform/excel/FileSizeLimit.h"

namespace ADODB {
namespace {

using EngineFailureTest = OneDatabase;

TEST_F(EngineFailureTest, SaysWhatAndWhere) {
  connection_->Execute("CREATE TABLE T (ID LONG PRIMARY KEY, Nombre TEXT(50) NOT NULL, N LONG)");
  connection_->Execute("CREATE TABLE Año (N LONG)");
  connection_->Execute("CREATE UNIQUE INDEX INombre ON T (Nombre)");
  connection_->Execute("CREATE INDEX [De N] ON T (N)");
  connection_->Execute("INSERT INTO T VALUES (1, 'a', 1)");
  struct Case {
    const char* text;
    long number;
    const char* said;             ///< in the description
    const char* place = nullptr;  ///< the text at the span
  };
  const Case cases[] = {
      {"SELECT N FROM Falta", velmar::kUnknownTable, "«Falta»"},
      {"SELECT N, Nombr FROM T", velmar::kUnknownName, "«Nombr»", "Nombr"},
      {"SELECT N FROM T, T AS U", velmar::kAmbiguousName, "«N»", "N"},
      {"SELECT Inventada(N) FROM T", velmar::kUnknownFunction, "Inventada", "Inventada(N)"},
      {"SELEC N FROM T", velmar::kQuerySyntax, "", "SELEC"},
      {"INSERT INTO Falta SELECT N FROM T", velmar::kUnknownTable, "«Falta»", "Falta"},
      {"INSERT INTO T (ID, M) SELECT N, N FROM T", velmar::kUnknownName, "«M»"},
      {"INSERT INTO T (ID, N) SELECT N FROM T", velmar::kColumnCountMismatch, "(1)"},
      {"INSERT INTO T VALUES (1, 2)", velmar::kColumnCountMismatch, ""},
      {"INSERT INTO T (ID, M) VALUES (1, 2)", velmar::kUnknownName, "La tabla «T» no tiene un campo «M»"},
      {"INSERT INTO T VALUES (2, 'A', 2)", velmar::kDuplicateKey, "T.Nombre"},
      {"INSERT INTO T (ID) VALUES (2)", velmar::kFieldRequired, "T.Nombre"},
      {"CREATE TABLE AÑO (N LONG)", velmar::kTableExists, "«AÑO»", "AÑO"},
      {"CREATE INDEX [de n] ON T (N)", velmar::kTableExists, "«T.de n»"},
      {"SELECT * INTO t FROM T", velmar::kTableExists, "«t»", "t"},
      {"SELECT N, N INTO U FROM T", velmar::kDuplicateOutput, "N"},
      {"SELECT N FROM T UNION SELECT N, ID FROM T", velmar::kQuerySyntax, "UNION"},
      {"SELECT N FROM T WHERE N = (SELECT N, ID FROM T)", velmar::kQuerySyntax, "subconsulta"},
      {"SELECT N FROM T ORDER BY 2", velmar::kQuerySyntax, "ORDER BY"},
      {"SELECT N FROM T UNION SELECT N FROM Año ORDER BY ID", velmar::kQuerySyntax, "UNION"},
      {"SELECT Sum(N) AS Suma FROM T WHERE Suma > 1", velmar::kQuerySyntax, "función de totales"},
      {"SELECT *", velmar::kQuerySyntax, "FROM", "*"},
      {"SELECT 1 / 0", velmar::kEngineFailure, "División por cero en la consulta."},
      {"ALTER TABLE T DROP COLUMN N", velmar::kQuerySyntax, "«T.De N»"},
      {"ALTER TABLE T DROP COLUMN Falta", velmar::kUnknownName, "«Falta»"},
      {"CREATE TABLE [T.De N] (N LONG)", velmar::kEngineFailure, "no puede cumplir la sentencia"},
      {"ALTER TABLE T ADD COLUMN X LONG NOT NULL", velmar::kFieldRequired, "NOT NULL"},
      {"CREATE TABLE sqlite_x (N LONG)", velmar::kQuerySyntax, "reservado"},
      {"SELECT Count(*) FROM [SQLITE_SCHEMA]", velmar::kUnknownTable, "«SQLITE_SCHEMA»"},
      {"SELECT 1 IN (SELECT rootpage FROM sqlite_master)", velmar::kUnknownTable, "«sqlite_master»"},
      {"DELETE FROM sqlite_master", velmar::kUnknownTable, "«sqlite_master»"},
      {"DROP TABLE sqlite_master", velmar::kUnknownTable, "«sqlite_master»"},
      {"SELECT * FROM pragma_table_list", velmar::kUnknownTable, "interna"},
      {"SELECT * FROM dbstat", velmar::kUnknownTable, "«dbstat»"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    const auto failure = FailureIn([&] { connection_->Execute(each.text); });
    EXPECT_EQ(failure.Number(), each.number);
    EXPECT_NE(failure.Description().find(each.said), std::string::npos) << failure.Description();
    EXPECT_TRUE(failure.Description().ends_with('.')) << failure.Description();
    if (each.place == nullptr) continue;
    ASSERT_TRUE(failure.Span());
    EXPECT_EQ(std::string(each.text).substr(failure.Span()->offset, failure.Span()->length), each.place);
  }
  EXPECT_EQ(RowsOf(*connection_, "SELECT * FROM T"), "1|a|1");
}

TEST_F(EngineFailureTest, NamesTheFileThatFails) {
  connection_->Execute("CREATE TABLE T (N LONG)");
  const auto other = folder_.OpenNew("Buena.mdb");
  other->Execute("CREATE TABLE T (N LONG)");
  folder_.Write("Corta.mdb", folder_.Read("Buena.mdb").substr(0, 4096));
  const auto expect = [&](long number, const std::string& file, const std::string& text) {
    SCOPED_TRACE(text);
    const auto failure = FailureIn([&] { connection_->Execute(text); });
    EXPECT_EQ(failure.Number(), number);
    EXPECT_NE(failure.Description().find(folder_.File(file)), std::string::npos) << failure.Description();
    EXPECT_EQ(failure.Description().find("A.mdb"), std::string::npos) << failure.Description();
  };
  expect(velmar::kNotADatabase, "Corta.mdb", "INSERT INTO T SELECT * FROM " + folder_.In("Corta.mdb") + "T");
  expect(velmar::kUnknownTable, "Buena.mdb", "SELECT * FROM " + folder_.In("Buena.mdb") + "Falta");
  other->BeginTrans();
  other->Execute("INSERT INTO T VALUES (1)");
  const std::string insert = "INSERT INTO " + folder_.In("Buena.mdb") + "T VALUES (2)";
  expect(velmar::kDatabaseLocked, "Buena.mdb", insert);
  other->CommitTrans();
  connection_->Execute(insert);
  EXPECT_EQ(RowsOf(*other, "SELECT N FROM T"), "1 / 2");
}

TEST(EngineFailure, AWriteThatFailsChangesNothing) {
  for (const char* more : {"", kWorkFile}) {
    SCOPED_TRACE(more);
    const TestFolder folder;
    const auto connection = folder.OpenNew("A.mdb", more);
    connection->Execute("CREATE TABLE T (N LONG, Texto TEXT(200))");
    connection->Execute("INSERT INTO T VALUES (1, '" + std::string(150, 'x') + "')");
    for (int doubling = 0; doubling < 11; ++doubling) connection->Execute("INSERT INTO T SELECT * FROM T");
    folder.Create("B.mdb", more);
    const std::string before = folder.Read("A.mdb");
    {
      const velmar::excel::FileSizeLimit limit(before.size() + 20'000);
      const std::string copy = "SELECT T.* INTO " + folder.In("B.mdb") + "U FROM T, T AS V";
      EXPECT_EQ(FailureOf(*connection, "INSERT INTO T SELECT * FROM T"), velmar::kDeviceIoError);
      EXPECT_EQ(FailureOf(*connection, copy), velmar::kDeviceIoError);
      EXPECT_EQ(RowsOf(*connection, "SELECT Count(*), Sum(N) FROM T"), "2048|2048");
    }
    connection->Close();
    EXPECT_EQ(folder.Read("A.mdb"), before);
    EXPECT_EQ(FailureOf(*folder.Open("B.mdb"), "SELECT * FROM U"), velmar::kUnknownTable);
    EXPECT_EQ(folder.Names(), (std::set<std::string>{"A.mdb", "B.mdb"}));
  }
}

TEST_F(EngineFailureTest, WhatMayOnlyBeReadIsReadAndNotWritten) {
  using std::filesystem::perms;
  connection_->Execute("CREATE TABLE T (N LONG)");
  connection_->Close();
  const std::string before = folder_.Read("A.mdb");
  const uid_t user = geteuid();
  for (const perms file : {perms(0444), perms(0777), perms::none}) {
    SCOPED_TRACE(static_cast<int>(file));
    std::filesystem::permissions(folder_.File("A.mdb"), file);
    std::filesystem::permissions(folder_.File(""), perms(0555));
    ASSERT_TRUE(user != 0 || seteuid(65534) == 0) << "root may write everywhere, so it becomes nobody";
    if (file == perms::none) {
      EXPECT_EQ(FailureOf([&] { connection_->Open(); }), velmar::kPermissionDenied);
    } else {
      connection_->Open();
      EXPECT_EQ(RowsOf(*connection_, "SELECT N FROM T"), "");
      EXPECT_EQ(FailureOf(*connection_, "INSERT INTO T VALUES (1)"), velmar::kReadOnly);
      connection_->Close();
    }
    EXPECT_EQ(FailureOf([&] { folder_.Create("B.mdb"); }), velmar::kPermissionDenied);
    ASSERT_EQ(seteuid(user), 0);
    std::filesystem::permissions(folder_.File(""), perms::all);
  }
  EXPECT_EQ(folder_.Read("A.mdb"), before);
  EXPECT_EQ(folder_.Names(), std::set<std::string>{"A.mdb"});
}

}  // namespace
}  // namespace ADODB
