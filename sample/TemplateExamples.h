#pragma once

#include "platform/ado/Connection.h"

namespace velmar::sample {

/// Fills ExportacionPlantillasTEMP of the open connection with a template that shows how templates are kept.
/// The transfer into the main database takes over the table's columns, not these rows.
void WriteTemplateExamples(ADODB::Connection& reports);

}  // namespace velmar::sample
