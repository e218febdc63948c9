#pragma once

#include <memory>
#include <string>

#include "platform/ado/Catalog.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::testing {

/// Real database files in a folder of their own, which goes with this object.
class TestDatabases {
 public:
  /// The connection string of a file, which need not exist.
  std::string Text(const std::string& file, const std::string& password = {}) const {
    std::string text = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + folder_ / file;
    if (!password.empty()) text += ";Jet OLEDB:Database Password=" + password;
    return text;
  }

  /// A new, empty database and an open connection to it.
  std::shared_ptr<ADODB::Connection> Create(const std::string& file, const std::string& password = {}) const {
    ADOX::Catalog().Create(Text(file, password));
    const auto connection = std::make_shared<ADODB::Connection>(Text(file, password));
    connection->Open();
    return connection;
  }

 private:
  files::TemporaryFolder folder_;
};

}  // namespace velmar::testing
