#pragma once

#include <functional>
#include <memory>
#include <string>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "host/interfaces/FailureReport.h"
#include "host/interfaces/cCuentaCodec.h"
#include "query/Selection.h"

namespace velmar {

/// Makes an account codec; called at most once for a clause, and only when an account has to be encoded.
using CodecFactory = std::function<std::shared_ptr<cCuentaCodec>()>;

/// The longest filter, in characters.
inline constexpr std::size_t kMaxFilterLength = 32767;

/// " WHERE " and the translated filters of the rows, joined by AND and ending with a blank; empty if no row
/// has a filter. What the filter language does not know passes as it was written.
///
/// A filter that cannot be translated is reported as "GenerarSQLWHERE ()" and thrown on, so that an export
/// never goes on without its filter: a text in brackets outside the language, a pattern token with no value
/// behind it, a mark or brace in the wrong order, a filter of more than kMaxFilterLength characters
/// (kOverflow), a field that the catalogue does not hold. The description names the field, the place and what
/// was expected.
std::string GenerarSQLWHERE(const Selection& selection, const Collection<cCampos>& mcolCampos,
                            const CodecFactory& codecFactory, const FailureReport& report);

}  // namespace velmar
