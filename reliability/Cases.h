#pragma once

#include "reliability/Sweep.h"

namespace velmar::reliability {

/// Full disks, by a limit on the size of files and by small file systems of their own, for the work files and
/// for the target.
Findings FullDisks(const Scenario& scenario, const Office& original, bool all);
/// Folders that may not be written, do not exist or bear awkward names, targets that are in use, databases
/// that another program has locked.
Findings AwkwardPlaces(const Scenario& scenario, const Office& original);
/// Two wizards of two processes on the same databases.
Findings TwoWizards(const Scenario& scenario, const Office& original);

}  // namespace velmar::reliability
