#include "qt/toolkit/FileIcons.h"

#include <QFileInfo>
#include <QMimeDatabase>

namespace velmar::qt {

QIcon FileIcons::icon(const QFileInfo& file) const {
  return icon(file.isRoot() ? Drive : file.isDir() ? Folder : File);
}

QString FileIcons::type(const QFileInfo& file) const {
  return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
}

}  // namespace velmar::qt
