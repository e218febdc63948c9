#pragma once

#include <span>
#include <string_view>

namespace velmar::sample {

/// The CREATE TABLE statements of the main database, in Jet SQL.
///
/// Conventions: a table's key is ID and its name in the singular, a reference to it is Cod and the same.
/// Dates are text of eight digits, year, month and day, or empty. Eliminado is -1 for a row that was deleted.
std::span<const std::string_view> MainTables();

/// The CREATE INDEX statements of the main database, to be run when the tables are filled.
std::span<const std::string_view> MainIndexes();

/// The CREATE TABLE statements of the reports database, but for the templates: see WriteTemplateExamples.
std::span<const std::string_view> ReportTables();

}  // namespace velmar::sample
