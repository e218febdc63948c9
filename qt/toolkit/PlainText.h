#pragma once

#include <QString>
#include <string>

namespace velmar::qt {

/// A text of the program for Qt: a carriage return, a line feed or both start a new line.
QString PlainText(const std::string& text);

}  // namespace velmar::qt
