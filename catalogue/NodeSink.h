#pragma once

#include <cstdint>
#include <string>

namespace velmar {

/// Takes the nodes of the catalogue, each with its name and its number. The node list of the window is one.
class NodeSink {
 public:
  virtual ~NodeSink() = default;

  /// Comes before the first node: painting may stop.
  virtual void BeginNodes() = 0;
  virtual void AddNode(const std::string& literalTabla, std::int16_t idTabla) = 0;
  /// Comes behind the last node, also behind a failure: painting goes on.
  virtual void EndNodes() noexcept = 0;
};

}  // namespace velmar
