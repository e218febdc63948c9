#include "platform/ado/DatabasePassword.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

std::string Clause(const std::string& password) {
  return "Jet OLEDB:Database Password=" + password;
}

TEST(DatabasePassword, OpensWithTheRightOneOnly) {
  const TestFolder folder;
  folder.OpenNew("A.mdb", Clause("Áb1"))->Execute("CREATE TABLE T (N LONG)");
  for (const char* wrong : {"", "áb1", "Áb1x", "Áb"}) {
    SCOPED_TRACE(wrong);
    Connection connection(folder.Text("A.mdb", Clause(wrong)));
    EXPECT_EQ(FailureOf([&] { connection.Open(); }), velmar::kWrongPassword);
    EXPECT_EQ(connection.State(), kStateClosed);
    connection.Properties("Jet OLEDB:Database Password").Value("Áb1");
    connection.Open();
    EXPECT_EQ(connection.State(), kStateOpen);
  }
  EXPECT_EQ(folder.Read("A.mdb").find("Áb1"), std::string::npos);
}

TEST(DatabasePassword, OneForAFileWithoutIsIgnored) {
  const TestFolder folder;
  folder.Create("A.mdb");
  EXPECT_EQ(folder.Open("A.mdb", Clause("x"))->State(), kStateOpen);
}

TEST(DatabasePassword, CanBeSetChangedAndRemoved) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb");
  connection->Execute("CREATE TABLE T (N LONG)");
  for (const char* password : {"uno", "d;o's", ""}) {
    SCOPED_TRACE(password);
    connection->SetDatabasePassword(password);
    connection->Close();
    connection->Open();
    EXPECT_EQ(connection->Properties("Jet OLEDB:Database Password").Value(), password);
    EXPECT_EQ(FailureOf([&] { folder.Open("A.mdb", Clause("otra")); }),
              *password == 0 ? 0L : velmar::kWrongPassword);
  }
}

TEST(DatabasePassword, OneThatNoStatementCouldNameIsRefused) {
  const TestFolder folder;
  EXPECT_EQ(FailureOf([&] { folder.Create("A.mdb", Clause("a]b")); }), velmar::kInvalidPropertyValue);
  EXPECT_EQ(folder.Names(), "");
  const auto connection = folder.OpenNew("A.mdb", Clause("a[b"));
  EXPECT_EQ(FailureOf([&] { connection->SetDatabasePassword("a]b"); }), velmar::kInvalidPropertyValue);
  connection->Execute("CREATE TABLE T (N LONG)");
  EXPECT_EQ(RowsOf(*folder.OpenNew("B.mdb"), "SELECT * FROM [" + folder.File("A.mdb") + ";pwd=a[b].T"), "")
      << "the old password is still the right one";
}

TEST(DatabasePassword, AChangeCountsAtOnceForWhoHadItRight) {
  const TestFolder folder;
  const auto owner = folder.OpenNew("A.mdb", Clause("vieja"));
  owner->Execute("CREATE TABLE T (N LONG)");
  const auto other = folder.OpenNew("B.mdb");
  const std::string select = "SELECT * FROM [" + folder.File("A.mdb") + ";pwd=vieja].[T]";
  EXPECT_EQ(FailureOf([&] { other->Execute(select); }), 0);
  owner->SetDatabasePassword("nueva");
  EXPECT_EQ(FailureOf([&] { other->Execute(select); }), velmar::kWrongPassword);
}

TEST(DatabasePassword, ItsTableIsClosedToStatements) {
  const TestFolder folder;
  const auto connection = folder.OpenNew("A.mdb", Clause("x"));
  const auto other = folder.OpenNew("B.mdb");
  const std::string external = "[" + folder.File("A.mdb") + ";pwd=x].[MSysVelmar]";
  for (const std::string& text :
       {std::string("SELECT * FROM MSysVelmar"), std::string("DELETE FROM msysvelmar"),
        std::string("DROP TABLE MSysVelmar"), std::string("UPDATE MSysVelmar SET Clave = ''"),
        std::string("INSERT INTO MSysVelmar (Clave) VALUES ('x')"),
        std::string("SELECT * INTO T FROM MSysVelmar")}) {
    SCOPED_TRACE(text);
    EXPECT_NE(FailureOf([&] { connection->Execute(text); }), 0);
  }
  EXPECT_EQ(FailureOf([&] { other->Execute("SELECT * FROM " + external); }), velmar::kPermissionDenied);
  EXPECT_EQ(FailureOf([&] { folder.Open("A.mdb"); }), velmar::kWrongPassword);
}

}  // namespace
}  // namespace ADODB
