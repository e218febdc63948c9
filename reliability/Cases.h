#pragma once

#include "reliability/Sweep.h"

namespace velmar::reliability {

// What the system may refuse stands in groups of its own, so that a group without cases is noticed.

/// Full disks, by a limit on the size of files.
Findings LimitedFiles(const Scenario& scenario, const Office& original, bool all);
/// Full disks, by small file systems of their own for all files and for the target alone; needs name spaces.
Findings SmallDisks(const Scenario& scenario, const Office& original, bool all);
/// Folders that may not be written; needs name spaces, and one case needs the superuser.
Findings ProtectedPlaces(const Scenario& scenario, const Office& original);
/// Folders that do not exist or bear awkward names, targets that are in use, databases that another program
/// has locked.
Findings AwkwardPlaces(const Scenario& scenario, const Office& original);
/// Two wizards of two processes on the same databases.
Findings TwoWizards(const Scenario& scenario, const Office& original);

}  // namespace velmar::reliability
