#pragma once

#include "sample/command/Terminal.h"
#include "sample/host/SampleHost.h"

namespace velmar::sample {

/// Writes the templates of the host's user to out, one a line: name, and how many fields, filters and sorted
/// fields it has. On a terminal the columns are aligned below a head; elsewhere tabs part them. The databases
/// are only read. RuntimeError if they cannot be.
void PrintTemplates(const SampleHost::Settings& settings, const Terminal& terminal);

}  // namespace velmar::sample
