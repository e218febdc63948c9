#pragma once

#include <string>

#include "query/GroupedFilter.h"

namespace velmar {

/// The filter with each pattern token, "[Comience por]", "[Que contenga]" or "[Acabe en]", replaced by " LIKE
/// " and the wildcard "%" put into the value behind it. The words that join or compare, "[Y]", "[O]",
/// "[Entre]" and "[Igual a uno de]", stay for later.
///
/// Failures, with their place in the typed filter: another text in brackets, a bracket that is not closed, a
/// pattern token with no value behind it, a closing mark without its opening one.
std::string ReplacePatternTokens(const GroupedFilter& filter);

}  // namespace velmar
