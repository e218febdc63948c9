#pragma once

#include <cstdint>
#include <string>

#include "sample/CalendarDate.h"

namespace velmar::sample {

/// What the generator is to make.
struct GeneratorOptions {
  std::string folder;         ///< where Gestion.mdb and Informes.mdb come to stand; made if it is not there
  long collaborators = 2000;  ///< 1 to kMaximumCollaborators
  std::uint64_t seed = 1;
  /// The day on which the office is seen: receipts reach back to 1 January of the year before.
  CalendarDate date = Today();
  std::string mainPassword;     ///< empty: none
  std::string reportsPassword;  ///< empty: none
};

inline constexpr long kMaximumCollaborators = 5'000'000;

}  // namespace velmar::sample
