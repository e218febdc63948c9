#include "platform/error/RuntimeError.h"

#include <utility>

namespace velmar {

RuntimeError::RuntimeError(long number, std::string description, std::string source,
                           std::optional<TextSpan> span)
    : number_(number), description_(std::move(description)), source_(std::move(source)), span_(span) {}

}  // namespace velmar
