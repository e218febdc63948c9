#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

#include "platform/jet/StatementFile.h"
#include "platform/jet/TestDatabase.h"

namespace velmar::jet {
namespace {

std::string Joined(const std::vector<std::string>& parts, const std::string& between) {
  std::string joined;
  for (const std::string& part : parts) joined += (joined.empty() ? "" : between) + part;
  return joined;
}

std::unique_ptr<TestDatabase> Prepared(const StatementFile& file) {
  auto database = std::make_unique<TestDatabase>();
  for (const std::string& statement : file.ExternalSetup()) database->RunExternal(statement);
  for (const std::string& statement : file.Setup()) database->Run(statement);
  return database;
}

// Number, place and description: "3075 @12+4 Falta …".
std::string Shown(const RuntimeError& error) {
  std::string shown = std::to_string(error.Number());
  if (error.Span()) {
    shown += " @" + std::to_string(error.Span()->offset) + "+" + std::to_string(error.Span()->length);
  }
  return shown + " " + error.Description();
}

// The case as it really comes out.
StatementCase Actual(TestDatabase& database, const StatementCase& expected) {
  StatementCase actual = expected;
  actual.sql.clear();
  actual.names.clear();
  actual.error.clear();
  actual.rows.clear();
  actual.hasRows = false;
  database.Begin();
  try {
    const Translation translation = Translated(expected.jet);
    actual.sql = translation.sql;
    Outcome outcome = database.Run(expected.jet);
    if (!expected.after.empty()) outcome = database.Run(expected.after);
    actual.rows = outcome.rows;
    if (!expected.names.empty()) actual.names = Joined(outcome.names, ", ");
    actual.hasRows = true;
  } catch (const RuntimeError& error) {
    actual.error = Shown(error);
  }
  database.Rollback();
  return actual;
}

// With STATEMENTS_PRINT set to a file's path, the cases are written there as they come out, for reading
// before any of it is taken over.
void Print(const std::vector<StatementCase>& cases, const char* path) {
  std::ofstream out(path);
  for (const StatementCase& one : cases) {
    out << "== " << one.name << "\njet:   " << one.jet << "\n";
    if (!one.sql.empty()) out << "sql:   " << one.sql << "\n";
    if (!one.after.empty()) out << "after: " << one.after << "\n";
    if (!one.names.empty()) out << "names: " << one.names << "\n";
    if (one.hasRows) out << "rows:  " << Joined(one.rows, "\n       ") << "\n";
    if (!one.error.empty()) out << "error: " << one.error << "\n";
    out << "\n";
  }
}

TEST(Statements, TranslateAndRunAsTheFileSays) {
  const StatementFile file(TEST_DATA_DIR "/statements.txt");
  const auto database = Prepared(file);
  ASSERT_GT(file.Cases().size(), 100U);
  std::vector<StatementCase> all;
  for (const StatementCase& expected : file.Cases()) {
    SCOPED_TRACE("statements.txt:" + std::to_string(expected.line) + ": " + expected.name + "\n" +
                 expected.jet);
    const StatementCase actual = Actual(*database, expected);
    all.push_back(actual);
    EXPECT_EQ(expected.error, actual.error);
    if (expected.error.empty() || !expected.sql.empty()) {
      EXPECT_EQ(expected.sql, actual.sql);
    }
    if (!expected.names.empty()) {
      EXPECT_EQ(expected.names, actual.names);
    }
    EXPECT_EQ(expected.rows, actual.rows);
  }
  if (const char* path = std::getenv("STATEMENTS_PRINT")) Print(all, path);
}

}  // namespace
}  // namespace velmar::jet
