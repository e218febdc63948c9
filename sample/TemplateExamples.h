#pragma once

#include <chrono>
#include <string>

#include "platform/ado/Connection.h"

namespace velmar::sample {

/// The number of the user whose templates the examples are.
inline constexpr int kExampleUser = 1;

/// Makes the table of templates under this name in the open connection, with examples of what offices export:
/// each node, filters of each kind and sort orders. Those that look back a year look back from the day.
///
/// The reports database has them to show how templates are kept, since the transfer into the main database
/// takes over the columns, not the rows; in the main database they are there to be used.
void WriteTemplateExamples(ADODB::Connection& connection, const std::string& table,
                           std::chrono::year_month_day day);

}  // namespace velmar::sample
