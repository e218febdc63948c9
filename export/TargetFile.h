#pragma once

#include <string>

#include "export/WorkFiles.h"

namespace velmar::exporting {

/// The path to write the target workbook to. Refused, with a text for the user: a folder that does not exist,
/// a name that a workbook cannot have or that would mean several files, one of the host's databases, a work
/// file of the export, a file that another program has open, and a file whose name differs in capitals alone,
/// since nobody was asked about that one. Nothing is touched.
std::string CheckTarget(const std::string& strFichero, const WorkFiles& workFiles);

/// The same, and makes way for it: deletes the file of that name, which the user has agreed to. What stands
/// there without being a file, a folder or a link to nothing for instance, is refused.
std::string PrepareTarget(const std::string& strFichero, const WorkFiles& workFiles);

}  // namespace velmar::exporting
