#pragma once

#include <string>

#include "platform/error/RuntimeError.h"

namespace velmar {

/// The failure of a call of the operating system that gave this errno. `what` says in Spanish what could not
/// be done with which file, without a full stop: why, and what to do about it, is put behind it.
RuntimeError SystemFailure(int error, const std::string& what, const std::string& source);

}  // namespace velmar
