#pragma once

#include <string>
#include <string_view>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::jet {

/// The failure of a Jet text at a place: "<message> (carácter 12, «FORM»)." with the place as Span. The
/// position counts characters from 1; a place at the end of the text reads "al final del texto".
RuntimeError FailureAt(std::string_view jetText, TextSpan span, const std::string& message,
                       long number = kQuerySyntax);

}  // namespace velmar::jet
