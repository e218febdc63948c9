#pragma once

#include "host/ComponentSite.h"

namespace velmar::testing {

/// A host that brings a toolkit and nothing else.
class TestSite : public ComponentSite {
 public:
  explicit TestSite(toolkit::Toolkit& toolkit) : toolkit_(toolkit) {}
  toolkit::Toolkit& Surroundings() override { return toolkit_; }

 private:
  toolkit::Toolkit& toolkit_;
};

}  // namespace velmar::testing
