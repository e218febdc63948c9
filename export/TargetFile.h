#pragma once

#include <string>

#include "export/WorkFiles.h"

namespace velmar::exporting {

/// Makes way for the target workbook: deletes the file of that name, which the user has agreed to, and gives
/// the path to write to. Refused before anything is touched, with a text for the user: a folder that does not
/// exist, a name that a workbook cannot have or that would mean several files, one of the host's databases,
/// and a file whose name differs in capitals alone, since nobody was asked about that one.
std::string PrepareTarget(const std::string& strFichero, const WorkFiles& workFiles);

}  // namespace velmar::exporting
