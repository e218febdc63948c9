#include "qt/toolkit/PlainText.h"

namespace velmar::qt {

QString PlainText(const std::string& text) {
  return QString::fromStdString(text).replace("\r\n", "\n").replace('\r', '\n');
}

}  // namespace velmar::qt
