#pragma once

#include <string>

#include "platform/error/RuntimeError.h"

namespace velmar::jet {
struct Translation;
}

namespace ADODB {

class Database;

/// The failure that the engine has just reported on this handle, told in Spanish with the name, the file and,
/// for a translated text, the place in the Jet text.
velmar::RuntimeError EngineFailure(const Database& database, int code,
                                   const velmar::jet::Translation* translation = nullptr);

velmar::RuntimeError DatabaseNotFound(const std::string& path);
velmar::RuntimeError NotADatabase(const std::string& path);

}  // namespace ADODB
