#include "platform/ado/DatabasePassword.h"

#include <gtest/gtest.h>

#include "platform/ado/TestFolder.h"

namespace ADODB {
namespace {

using DatabasePasswordTest = OneDatabase;

TEST_F(DatabasePasswordTest, OpensWithTheRightOneOnly) {
  folder_.Create("B.mdb", Password("Áb1"));
  for (const char* wrong : {"", "áb1", "Áb1x", "Áb"}) {
    SCOPED_TRACE(wrong);
    Connection connection(folder_.Text("B.mdb", Password(wrong)));
    EXPECT_EQ(FailureOf([&] { connection.Open(); }), velmar::kWrongPassword);
    connection.Properties("Jet OLEDB:Database Password").Value("Áb1");
    EXPECT_EQ(FailureOf([&] { connection.Open(); }), 0);
  }
  EXPECT_EQ(folder_.Read("B.mdb").find("Áb1"), std::string::npos);
}

TEST_F(DatabasePasswordTest, CanBeSetChangedAndRemoved) {
  for (const std::string password : {"uno", "d;o's \"3\"", ""}) {
    SCOPED_TRACE(password);
    connection_->SetDatabasePassword(password);
    connection_->Close();
    connection_->Open();
    EXPECT_EQ(connection_->Properties("Jet OLEDB:Database Password").Value(), password);
    const long failure = FailureOf([&] { folder_.Open("A.mdb", Password("otra")); });
    EXPECT_EQ(failure == velmar::kWrongPassword, !password.empty());
  }
}

TEST_F(DatabasePasswordTest, OneThatNoStatementCouldNameIsRefused) {
  EXPECT_EQ(FailureOf([&] { folder_.Create("B.mdb", Password("a]b")); }), velmar::kInvalidPropertyValue);
  EXPECT_EQ(folder_.Names(), std::set<std::string>{"A.mdb"});
  connection_->SetDatabasePassword("a[b");
  EXPECT_EQ(FailureOf([&] { connection_->SetDatabasePassword("a]b"); }), velmar::kInvalidPropertyValue);
  connection_->Execute("CREATE TABLE T (N LONG)");
  EXPECT_EQ(RowsOf(*folder_.OpenNew("B.mdb"), "SELECT * FROM " + folder_.In("A.mdb;pwd=a[b") + "T"), "")
      << "the old password is still the right one";
}

TEST_F(DatabasePasswordTest, AChangeCountsAtOnceForWhoHadItRight) {
  const auto owner = folder_.OpenNew("B.mdb", Password("vieja"));
  owner->Execute("CREATE TABLE T (N LONG)");
  const std::string select = "SELECT * FROM " + folder_.In("B.mdb;pwd=vieja") + "T";
  EXPECT_EQ(FailureOf(*connection_, select), 0);
  owner->SetDatabasePassword("nueva");
  EXPECT_EQ(FailureOf(*connection_, select), velmar::kWrongPassword);
}

TEST_F(DatabasePasswordTest, ItsTableIsClosedToStatements) {
  connection_->SetDatabasePassword("x");
  for (const char* text : {"SELECT * FROM MSysVelmar", "DELETE FROM msysvelmar", "DROP TABLE MSysVelmar",
                           "UPDATE MSysVelmar SET Clave = ''", "INSERT INTO MSysVelmar (Clave) VALUES ('x')",
                           "SELECT * INTO T FROM MSysVelmar"})
    EXPECT_NE(FailureOf(*connection_, text), 0) << text;
  const std::string external = folder_.In("A.mdb;pwd=x") + "MSysVelmar";
  EXPECT_EQ(FailureOf(*folder_.OpenNew("B.mdb"), "SELECT * FROM " + external), velmar::kPermissionDenied);
  EXPECT_EQ(FailureOf([&] { folder_.Open("A.mdb"); }), velmar::kWrongPassword);
}

}  // namespace
}  // namespace ADODB
