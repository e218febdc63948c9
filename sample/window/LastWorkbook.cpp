#include "sample/window/LastWorkbook.h"

#include <QDir>
#include <QFileInfo>

namespace velmar::sample {

std::optional<LastWorkbook> LastWorkbook::Find(const std::string& folder, const std::string& chosen) {
  QFileInfoList files =
      QDir(QString::fromStdString(folder)).entryInfoList({"*.xls"}, QDir::Files | QDir::Readable);
  if (!chosen.empty()) files.append(QFileInfo(QString::fromStdString(chosen)));
  std::optional<LastWorkbook> last;
  for (const QFileInfo& file : files) {
    if (!file.exists() || (last && file.lastModified() <= last->written)) continue;
    last = {QDir::toNativeSeparators(file.absoluteFilePath()), file.lastModified(), file.size()};
  }
  return last;
}

}  // namespace velmar::sample
