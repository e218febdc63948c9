#pragma once

#include <QFileIconProvider>

namespace velmar::qt {

/// Icons and kinds of files by their names alone. Qt's own provider reads into each file of a folder, which a
/// slow share answers late and a pipe never, while the window stands still.
class FileIcons final : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& file) const override;
  QString type(const QFileInfo& file) const override;
};

}  // namespace velmar::qt
