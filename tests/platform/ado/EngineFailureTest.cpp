#include "platform/ado/EngineFailure.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

TEST(EngineFailure, SaysWhatAndWhere) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  connection->Execute("CREATE TABLE T (ID LONG PRIMARY KEY, Nombre TEXT(50) NOT NULL, N LONG)");
  connection->Execute("CREATE TABLE Año (N LONG)");
  connection->Execute("CREATE UNIQUE INDEX INombre ON T (Nombre)");
  connection->Execute("INSERT INTO T VALUES (1, 'a', 1)");
  struct Case {
    const char* text;
    long number;
    const char* said;   ///< in the description
    const char* place;  ///< the text at the span, or nullptr
  };
  const Case cases[] = {
      {"SELECT N FROM Falta", velmar::kUnknownTable, "«Falta»", nullptr},
      {"SELECT N, Nombr FROM T", velmar::kUnknownName, "«Nombr»", "Nombr"},
      {"SELECT N FROM T WHERE T.Nombr = 'x'", velmar::kUnknownName, "T.Nombr", "T.Nombr"},
      {"SELECT N FROM T ORDER BY U.N", velmar::kUnknownName, "U.N", "U.N"},
      {"SELECT N FROM T, T AS U", velmar::kAmbiguousName, "«N»", "N"},
      {"SELECT Inventada(N) FROM T", velmar::kUnknownFunction, "Inventada", "Inventada(N)"},
      {"SELEC N FROM T", velmar::kQuerySyntax, "", "SELEC"},
      {"SELECT N FROM T; DELETE FROM T", velmar::kQuerySyntax, "", "DELETE"},
      {"", velmar::kQuerySyntax, "", ""},
      {"UPDATE T SET M = 1", velmar::kUnknownName, "«M»", nullptr},
      {"DELETE FROM T WHERE M = 1", velmar::kUnknownName, "«M»", "M"},
      {"INSERT INTO Falta (N) VALUES (1)", velmar::kUnknownTable, "«Falta»", nullptr},
      {"INSERT INTO Falta SELECT N FROM T", velmar::kUnknownTable, "«Falta»", "Falta"},
      {"INSERT INTO T (ID, M) SELECT N, N FROM T", velmar::kUnknownName, "«M»", nullptr},
      {"INSERT INTO T (ID, N) SELECT N FROM T", velmar::kColumnCountMismatch, "(1)", nullptr},
      {"INSERT INTO T SELECT N + 5 AS ID, 'x' AS Y FROM T", velmar::kColumnCountMismatch, "(2)", nullptr},
      {"INSERT INTO T VALUES (1, 2)", velmar::kColumnCountMismatch, "", nullptr},
      {"INSERT INTO T (ID, M) VALUES (1, 2)", velmar::kUnknownName, "«M»", nullptr},
      {"INSERT INTO T VALUES (1, 'b', 2)", velmar::kDuplicateKey, "T.ID", nullptr},
      {"INSERT INTO T VALUES (2, 'A', 2)", velmar::kDuplicateKey, "T.Nombre", nullptr},
      {"INSERT INTO T (ID) VALUES (2)", velmar::kFieldRequired, "T.Nombre", nullptr},
      {"CREATE TABLE t (N LONG)", velmar::kTableExists, "«t»", "t"},
      {"CREATE TABLE AÑO (N LONG)", velmar::kTableExists, "«AÑO»", "AÑO"},
      {"CREATE INDEX INombre ON T (N)", velmar::kTableExists, "INombre", nullptr},
      {"SELECT * INTO t FROM T", velmar::kTableExists, "«t»", "t"},
      {"SELECT N, N INTO U FROM T", velmar::kDuplicateOutput, "N", nullptr},
      {"SELECT T.*, U.* INTO V FROM T INNER JOIN T AS U ON T.N = U.N", velmar::kDuplicateOutput, "ID",
       nullptr},
      {"DROP TABLE Falta", velmar::kUnknownTable, "Falta", nullptr},
      {"SELECT N FROM T UNION SELECT N, ID FROM T", velmar::kQuerySyntax, "UNION", nullptr},
      {"SELECT N FROM T WHERE N = (SELECT N, ID FROM T)", velmar::kQuerySyntax, "subconsulta", nullptr},
      {"SELECT N FROM T ORDER BY 2", velmar::kQuerySyntax, "ORDER BY", nullptr},
      {"SELECT 1 / 0", velmar::kEngineFailure, "", nullptr},
      {"ALTER TABLE T ADD COLUMN X LONG NOT NULL", velmar::kFieldRequired, "NOT NULL", nullptr},
      {"CREATE TABLE sqlite_x (N LONG)", velmar::kQuerySyntax, "reservado", nullptr},
      {"SELECT * FROM sqlite_master", velmar::kUnknownTable, "«sqlite_master»", nullptr},
      {"SELECT Count(*) FROM [SQLITE_SCHEMA]", velmar::kUnknownTable, "«SQLITE_SCHEMA»", nullptr},
      {"SELECT name INTO U FROM sqlite_master", velmar::kUnknownTable, "«sqlite_master»", nullptr},
      {"SELECT N FROM T WHERE N IN (SELECT rootpage FROM sqlite_master)", velmar::kUnknownTable,
       "«sqlite_master»", nullptr},
      {"UPDATE T SET N = (SELECT Count(*) FROM sqlite_master)", velmar::kUnknownTable, "«sqlite_master»",
       nullptr},
      {"DELETE FROM sqlite_master", velmar::kUnknownTable, "«sqlite_master»", nullptr},
      {"DROP TABLE sqlite_master", velmar::kUnknownTable, "«sqlite_master»", nullptr},
      {"SELECT * FROM pragma_table_list", velmar::kUnknownTable, "interna", nullptr},
      {"SELECT * FROM dbstat", velmar::kUnknownTable, "«dbstat»", nullptr},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    try {
      connection->Execute(each.text);
      ADD_FAILURE() << "no failure";
    } catch (const velmar::RuntimeError& error) {
      EXPECT_EQ(error.Number(), each.number);
      EXPECT_NE(error.Description().find(each.said), std::string::npos) << error.Description();
      SCOPED_TRACE(error.Description());
      if (each.place != nullptr) {
        ASSERT_TRUE(error.Span());
        EXPECT_EQ(std::string(each.text).substr(error.Span()->offset, error.Span()->length), each.place);
      }
    }
  }
  EXPECT_EQ(RowsOf(*connection, "SELECT * FROM T"), "1|a|1");
}

TEST(EngineFailure, NamesTheDatabaseThatLacksATable) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  folder.Create("B.mdb");
  try {
    connection->Execute("SELECT * FROM [" + folder.File("B.mdb") + "].[Falta]");
    FAIL();
  } catch (const velmar::RuntimeError& error) {
    EXPECT_EQ(error.Number(), velmar::kUnknownTable);
    EXPECT_NE(error.Description().find("«Falta»"), std::string::npos) << error.Description();
    EXPECT_NE(error.Description().find(folder.File("B.mdb")), std::string::npos) << error.Description();
  }
}

TEST(EngineFailure, ATableMayBearTheNameOfOneThatTheEngineMakesUp) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  for (const std::string name : {"dbstat", "pragma_table_list"}) {
    connection->Execute("CREATE TABLE " + name + " (N LONG)");
    connection->Execute("INSERT INTO " + name + " VALUES (7)");
    EXPECT_EQ(RowsOf(*connection, "SELECT N FROM " + name), "7");
    EXPECT_EQ(RowsOf(*connection, "SELECT Count(*) FROM " + name), "1");
  }
}

TEST(EngineFailure, NamesTheFileThatFails) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("Propia.mdb");
  connection->Execute("CREATE TABLE T (N LONG)");
  connection->Execute("INSERT INTO T VALUES (1)");
  const auto other = folder.OpenNew("Buena.mdb");
  other->Execute("CREATE TABLE T (N LONG)");
  folder.Write("Corta.mdb", folder.Read("Buena.mdb").substr(0, 4096));
  folder.Write("Texto.mdb", std::string(5000, 'x'));
  const auto description = [&](const std::string& text) {
    try {
      connection->Execute(text);
    } catch (const velmar::RuntimeError& error) {
      return error.Description();
    }
    return std::string("no failure");
  };
  for (const char* name : {"Corta.mdb", "Texto.mdb"}) {
    const std::string table = "[" + folder.File(name) + "].";
    for (const std::string& text : {"SELECT * INTO " + table + "Z FROM T", "SELECT * FROM " + table + "T",
                                    "INSERT INTO T SELECT * FROM " + table + "T"}) {
      SCOPED_TRACE(text);
      const std::string said = description(text);
      EXPECT_NE(said.find(folder.File(name)), std::string::npos) << said;
      EXPECT_EQ(said.find("Propia.mdb"), std::string::npos) << said;
    }
  }
  const std::string good = "[" + folder.File("Buena.mdb") + "].";
  const auto locked = [&](const std::string& text) {
    std::string said = description(text);
    EXPECT_NE(said.find("ocupada"), std::string::npos) << said;
    EXPECT_NE(said.find(folder.File("Buena.mdb")), std::string::npos) << said;
    return said;
  };
  other->BeginTrans();
  other->Execute("INSERT INTO T VALUES (1)");
  const std::string said = locked("INSERT INTO " + good + "T VALUES (2)");
  EXPECT_EQ(said.find("Propia.mdb"), std::string::npos) << said;
  locked("SELECT * INTO " + good + "Z FROM T");
}

TEST(EngineFailure, ALockedFileIsLeftAlone) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  connection->Execute("CREATE TABLE T (N LONG)");
  const auto writer = folder.Open("A.mdb");
  writer->BeginTrans();
  writer->Execute("INSERT INTO T VALUES (1)");
  EXPECT_EQ(FailureOf([&] { connection->Execute("INSERT INTO T VALUES (2)"); }), velmar::kDatabaseLocked);
  writer->CommitTrans();
  connection->Execute("INSERT INTO T VALUES (3)");
  EXPECT_EQ(RowsOf(*connection, "SELECT N FROM T"), "1 / 3");
}

/// While it exists no file of this process may grow beyond a size: writes behind it fail.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    ::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
};

TEST(EngineFailure, AWriteThatFailsChangesNothing) {
  for (const char* more : {"", "Jet OLEDB:Scratch=True"}) {
    SCOPED_TRACE(more);
    const TestFolder folder;
    const auto connection = folder.OpenNew("A.mdb", more);
    connection->Execute("CREATE TABLE T (N LONG, Texto TEXT(200))");
    connection->Execute("INSERT INTO T VALUES (1, '" + std::string(150, 'x') + "')");
    for (int doubling = 0; doubling < 11; ++doubling) connection->Execute("INSERT INTO T SELECT * FROM T");
    folder.Create("B.mdb", more);
    const std::string before = folder.Read("A.mdb");
    {
      const FileSizeLimit limit(before.size() + 20'000);
      for (const std::string& text :
           {std::string("INSERT INTO T SELECT * FROM T"), std::string("SELECT * INTO U FROM T"),
            "SELECT T.* INTO U IN '" + folder.File("B.mdb") + "' FROM T, T AS V"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(FailureOf([&] { connection->Execute(text); }), velmar::kDeviceIoError);
      }
      EXPECT_EQ(RowsOf(*connection, "SELECT Count(*), Sum(N) FROM T"), "2048|2048");
    }
    connection->Close();
    EXPECT_EQ(folder.Read("A.mdb"), before);
    EXPECT_EQ(FailureOf([&] { folder.Open("B.mdb")->Execute("SELECT * FROM U"); }), velmar::kUnknownTable);
    EXPECT_EQ(folder.Names(), "A.mdb B.mdb");
  }
}

/// While it exists the process has no privileges that would make it free of permissions.
class OrdinaryUser {
 public:
  OrdinaryUser() : before_(::geteuid()) { changed_ = before_ == 0 && ::seteuid(65534) == 0; }
  ~OrdinaryUser() {
    if (changed_ && ::seteuid(before_) != 0) std::abort();
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  uid_t before_;
  bool changed_ = false;
};

TEST(EngineFailure, WhatMayOnlyBeReadIsReadAndNotWritten) {
  using std::filesystem::perms;
  const TestFolder folder;
  folder.OpenNew("A.mdb")->Execute("CREATE TABLE T (N LONG)");
  const std::string before = folder.Read("A.mdb");
  const auto attempt = [&](perms file, perms directory) {
    std::filesystem::permissions(folder.File("A.mdb"), file);
    std::filesystem::permissions(folder.File(""), directory);
    long opened = 0;
    long written = 0;
    long created = 0;
    {
      const OrdinaryUser user;
      Connection connection(folder.Text("A.mdb"));
      opened = FailureOf([&] { connection.Open(); });
      if (opened == 0) {
        EXPECT_EQ(RowsOf(connection, "SELECT N FROM T"), "");
        written = FailureOf([&] { connection.Execute("INSERT INTO T VALUES (1)"); });
      }
      created = FailureOf([&] { ADOX::Catalog().Create(folder.Text("B.mdb")); });
    }
    std::filesystem::permissions(folder.File(""), perms::all);
    return std::vector<long>{opened, written, created};
  };
  const perms readable = perms::owner_read | perms::others_read | perms::group_read;
  const perms enterable = readable | perms::owner_exec | perms::others_exec | perms::group_exec;
  EXPECT_EQ(attempt(readable, enterable),
            (std::vector<long>{0, velmar::kReadOnly, velmar::kPermissionDenied}));
  EXPECT_EQ(attempt(perms::all, enterable),
            (std::vector<long>{0, velmar::kReadOnly, velmar::kPermissionDenied}));
  EXPECT_EQ(attempt(perms::none, enterable),
            (std::vector<long>{velmar::kPermissionDenied, 0, velmar::kPermissionDenied}));
  EXPECT_EQ(folder.Read("A.mdb"), before);
  EXPECT_EQ(folder.Names(), "A.mdb");
}

}  // namespace
}  // namespace ADODB
