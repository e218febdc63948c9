#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>

namespace velmar::qt {

/// The help that a program brings: the HTML text of a topic of a help file, nothing if it has none.
using HelpProvider = std::function<std::optional<QString>(const std::string& file, long topic)>;

}  // namespace velmar::qt
