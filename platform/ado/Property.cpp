#include "platform/ado/Property.h"

#include <utility>

#include "platform/ado/Connection.h"

namespace ADODB {

Property::Property(Connection& connection, std::string name)
    : connection_(&connection), name_(std::move(name)) {}

std::string Property::Value() const {
  return connection_->PropertyValue(name_);
}

void Property::Value(const std::string& value) {
  connection_->PropertyValue(name_, value);
}

}  // namespace ADODB
