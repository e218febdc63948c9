#pragma once

#include <string>

namespace ADODB {

class Connection;

/// One property of a connection, as Connection::Properties gives it. Valid as long as the connection object.
class Property {
 public:
  Property(Connection& connection, std::string name);

  const std::string& Name() const noexcept { return name_; }
  std::string Value() const;
  /// On a closed connection only (kObjectOpen); "Data Source Name" follows from the file and is read-only.
  void Value(const std::string& value);

 private:
  Connection* connection_;
  std::string name_;
};

}  // namespace ADODB
