#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <string>

namespace velmar::sample {

/// The newest workbook.
struct LastWorkbook {
  /// Of those in the folder and the one at `chosen`, where a user may have saved one; empty for none.
  static std::optional<LastWorkbook> Find(const std::string& folder, const std::string& chosen);

  QString path;
  QDateTime written;
  qint64 bytes;
};

}  // namespace velmar::sample
