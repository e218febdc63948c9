#pragma once

#include <string>

namespace velmar::sample {

/// Whether the folder has the office's databases. Raises kFileNotFound if it has only one of the two: making
/// the other anew would pass for the lost one.
bool HasOffice(const std::string& folder);

}  // namespace velmar::sample
