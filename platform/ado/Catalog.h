#pragma once

#include <string>

namespace ADOX {

/// Makes database files.
class Catalog {
 public:
  /// Creates an empty database file at the connection text's data source. With "Jet OLEDB:Database Password"
  /// the database has that password; with "Jet OLEDB:Scratch=True" it is a work file without durability (see
  /// docs/databases.md). kFileAlreadyExists if there is one, kPathNotFound if the folder does not exist;
  /// after a failure there is no file.
  void Create(const std::string& connectionText);
};

}  // namespace ADOX
