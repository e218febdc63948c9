#pragma once

#include <cstdint>

namespace velmar::excel {

/// What a statement has cost the disk: operations and bytes.
struct IoCounts {
  std::uint64_t reads = 0;
  std::uint64_t bytesRead = 0;
  std::uint64_t writes = 0;
  std::uint64_t bytesWritten = 0;
};

}  // namespace velmar::excel
