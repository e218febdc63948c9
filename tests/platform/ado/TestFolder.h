#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "platform/ado/Catalog.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/error/Failure.h"
#include "platform/files/TemporaryFolder.h"

namespace ADODB {

using velmar::FailureIn;
using velmar::FailureOf;

constexpr const char* kWorkFile = "Jet OLEDB:Scratch=True";

inline std::string Password(const std::string& password) {
  return "Jet OLEDB:Database Password=" + password;
}

/// A folder of its own for one test, removed at the end, and the databases in it.
class TestFolder : public velmar::files::TemporaryFolder {
 public:
  std::string File(const std::string& name) const { return *this / name; }

  /// What stands before a table of that file in a statement.
  std::string In(const std::string& name) const { return "[" + File(name) + "]."; }

  std::string Text(const std::string& name, const std::string& more = {}) const {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + File(name) + ";" + more;
  }

  /// A new database file.
  void Create(const std::string& name, const std::string& more = {}) const {
    ADOX::Catalog().Create(Text(name, more));
  }

  std::shared_ptr<Connection> Open(const std::string& name, const std::string& more = {}) const {
    auto connection = std::make_shared<Connection>();
    connection->Open(Text(name, more));
    return connection;
  }

  std::shared_ptr<Connection> OpenNew(const std::string& name, const std::string& more = {}) const {
    Create(name, more);
    return Open(name, more);
  }
};

/// The rows that are left in a recordset, as "a|b / c|d", with "Null" for Null.
inline std::string RowsOf(Recordset& recordset) {
  std::string text;
  for (; !recordset.Eof(); recordset.MoveNext()) {
    if (!text.empty()) text += " / ";
    for (long column = 0; column < recordset.Fields().Count(); ++column) {
      const Variant value = recordset.Fields(column).Value();
      text += (column == 0 ? "" : "|") + (value.IsNull() ? std::string("Null") : value.AsText());
    }
  }
  return text;
}

inline std::string RowsOf(Connection& connection, std::string_view select) {
  return RowsOf(*connection.Execute(select));
}

inline long FailureOf(Connection& connection, std::string_view statement) {
  return FailureOf([&] { connection.Execute(statement); });
}

/// A database that is open, and a recordset that is not.
class OneDatabase : public testing::Test {
 protected:
  TestFolder folder_;
  std::shared_ptr<Connection> connection_ = folder_.OpenNew("A.mdb");
  Recordset rows_;
};

}  // namespace ADODB
