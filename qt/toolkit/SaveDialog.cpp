#include "qt/toolkit/SaveDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <utility>

#include "platform/controls/CommonDialog.h"

namespace velmar::qt {
namespace {

QString Folder(const controls::CommonDialog& settings) {
  const QString last = QString::fromStdString(settings.FileName());
  for (const QString& folder :
       {last.isEmpty() ? QString() : QFileInfo(last).path(), QString::fromStdString(settings.InitDir()),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)}) {
    if (QDir::isAbsolutePath(folder) && QDir(folder).exists()) return folder;
  }
  return QDir::homePath();
}

QStringList NameFilters(const controls::CommonDialog& settings) {
  QStringList filters;
  for (const auto& type : settings.FileTypes()) {
    const QString patterns = QString::fromStdString(type.patterns).replace(';', ' ');
    filters << QString("%1 (%2)").arg(QString::fromStdString(type.description), patterns);
  }
  return filters;
}

/// Where people keep their files, of what there is, and the whole computer.
QList<QUrl> Places() {
  QList<QUrl> places;
  for (const auto location :
       {QStandardPaths::DocumentsLocation, QStandardPaths::DesktopLocation, QStandardPaths::HomeLocation}) {
    const QUrl place = QUrl::fromLocalFile(QStandardPaths::writableLocation(location));
    if (QDir(place.toLocalFile()).exists() && !places.contains(place)) places.append(place);
  }
  places.append(QUrl("file:"));
  return places;
}

}  // namespace

SaveDialog::SaveDialog(const controls::CommonDialog& settings, Confirm confirm, QWidget* parent)
    : QFileDialog(parent, QString::fromStdString(settings.DialogTitle())),
      settings_(settings),
      confirm_(std::move(confirm)) {
  // The system's dialog would speak the system's language and ask in its own way. The question before an
  // existing file is replaced must know the extension that is added later.
  setOptions(DontUseNativeDialog | DontConfirmOverwrite);
  setIconProvider(&icons);
  setWindowModality(Qt::ApplicationModal);
  setAcceptMode(AcceptSave);
  setFileMode(AnyFile);
  setNameFilters(NameFilters(settings));
  setDirectory(Folder(settings));
  if (!settings.FileName().empty()) {
    selectFile(QFileInfo(QString::fromStdString(settings.FileName())).fileName());
  }
  setLabelText(Accept, "&Guardar");
  setLabelText(Reject, "Cancelar");
  setLabelText(FileName, "&Nombre del archivo:");
  setLabelText(FileType, "Tipo de archivo:");
  setLabelText(LookIn, "Guardar en:");
  setSidebarUrls(Places());
  if (auto* files = findChild<QTreeView*>("treeView")) files->header()->setStretchLastSection(true);
  // Qt changes the button to "open" on the way through a folder's name, and leaves it so.
  if (auto* name = findChild<QLineEdit*>("fileNameEdit")) {
    QObject::connect(name, &QLineEdit::textChanged, this, [this](const QString& text) {
      const bool isFolder = !text.isEmpty() && QFileInfo(directory(), text).isDir();
      setLabelText(Accept, isFolder ? "&Abrir" : "&Guardar");
    });
  }
  resize(
      sizeHint().expandedTo(QSize(fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 28)));
}

std::string SaveDialog::Chosen() const {
  const QStringList files = selectedFiles();
  return files.isEmpty() ? std::string() : settings_.WithDefaultExt(files.first().toStdString());
}

void SaveDialog::accept() {
  const std::string path = Chosen();
  const QFileInfo file(QString::fromStdString(path));
  // A folder's name opens the folder.
  const bool asks = (settings_.Flags() & controls::CommonDialog::kOverwritePrompt) != 0 && file.exists() &&
                    !file.isDir() && !QFileInfo(selectedFiles().first()).isDir();
  if (asks && !confirm_(path)) return;
  QFileDialog::accept();
}

std::optional<std::string> SaveDialog::Ask() {
  if (exec() != Accepted) return std::nullopt;
  return Chosen();
}

}  // namespace velmar::qt
