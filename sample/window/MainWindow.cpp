#include "sample/window/MainWindow.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "sample/window/OfficeSummary.h"

namespace velmar::sample {
namespace {

QLabel* Heading(const QString& text) {
  auto* label = new QLabel(text);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * 1.5);
  font.setBold(true);
  label->setFont(font);
  return label;
}

QLabel* SelectableText(const QString& text = {}) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setWordWrap(true);
  return label;
}

}  // namespace

MainWindow::MainWindow(OfficeToolkit& toolkit, SampleHost::Settings settings,
                       std::function<void()> openWizard)
    : toolkit_(toolkit), settings_(std::move(settings)), openWizard_(std::move(openWizard)) {
  setObjectName("ventanaPrincipal");
  setWindowTitle(QString::fromStdString(settings_.title));
  auto* column = new QVBoxLayout(this);
  column->setSpacing(column->spacing() * 2);
  column->addWidget(Heading(QString::fromStdString(settings_.title)));
  column->addWidget(SelectableText("Entidad de ejemplo, con las bases de datos de la carpeta " +
                                   QDir::toNativeSeparators(QString::fromStdString(settings_.folder))));
  column->addWidget(MakeSummary());
  column->addWidget(MakeLastWorkbook());
  column->addStretch();
  column->addWidget(MakeButtons());
  setMinimumWidth(fontMetrics().averageCharWidth() * 70);
  ShowOffice();
  // Left to itself it would take two thirds of the screen's height at most, which cuts large letters.
  resize(sizeHint());
}

QWidget* MainWindow::MakeSummary() {
  auto* group = new QGroupBox("Datos");
  counts_ = new QFormLayout(group);
  counts_->setLabelAlignment(Qt::AlignLeft);
  counts_->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
  counts_->setHorizontalSpacing(fontMetrics().averageCharWidth() * 4);
  return group;
}

QWidget* MainWindow::MakeLastWorkbook() {
  auto* group = new QGroupBox("Última exportación");
  auto* row = new QHBoxLayout(group);
  auto* texts = new QVBoxLayout;
  lastName_ = SelectableText();
  lastDetails_ = SelectableText();
  texts->addWidget(lastName_);
  texts->addWidget(lastDetails_);
  row->addLayout(texts, 1);
  openFolder_ = new QPushButton("Abrir la &carpeta");
  openFolder_->setObjectName("cmdCarpeta");
  openFolder_->setToolTip("Muestra la carpeta del último libro exportado");
  QObject::connect(openFolder_, &QPushButton::clicked, this, [this] {
    const QString folder = QFileInfo(last_->path).absolutePath();
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(folder))) return;
    throw RuntimeError(
        kFileNotFound,
        "Ningún programa del sistema muestra carpetas. El libro está en " + folder.toStdString(), "ventana");
  });
  row->addWidget(openFolder_);
  return group;
}

QWidget* MainWindow::MakeButtons() {
  auto* buttons = new QWidget;
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  auto* wizard = new QPushButton("Asistente de &exportación…");
  wizard->setObjectName("cmdAsistente");
  wizard->setDefault(true);
  QObject::connect(wizard, &QPushButton::clicked, this, [this] { OpenWizard(); });
  auto* leave = new QPushButton("&Salir");
  leave->setObjectName("cmdSalir");
  QObject::connect(leave, &QPushButton::clicked, this, [this] { close(); });
  row->addWidget(wizard);
  row->addStretch();
  row->addWidget(leave);
  return buttons;
}

void MainWindow::OpenWizard() {
  toolkit_.Owner(this);
  toolkit_.Loop().Dispatch(openWizard_);
  ShowOffice();
}

void MainWindow::ShowOffice() {
  const OfficeSummary summary = OfficeSummary::Read(settings_.folder, settings_.user);
  for (const OfficeSummary::Count& count : summary.counts) {
    const QString label = QString::fromStdString(count.label);
    auto* rows = findChild<QLabel*>(label);
    if (rows == nullptr) {
      rows = new QLabel;
      rows->setAlignment(Qt::AlignRight);
      rows->setObjectName(label);
      counts_->addRow(label + ":", rows);
    }
    rows->setText(QLocale().toString(static_cast<qlonglong>(count.rows)));
  }
  ShowLastWorkbook();
}

void MainWindow::ShowLastWorkbook() {
  last_ = LastWorkbook::Find(settings_.folder, toolkit_.LastChosen());
  openFolder_->setEnabled(last_.has_value());
  if (!last_) {
    lastName_->setText("Todavía no se ha exportado nada.");
    lastDetails_->clear();
    return;
  }
  lastName_->setText(last_->path);
  lastDetails_->setText(QLocale().toString(last_->written, "d 'de' MMMM 'de' yyyy, HH:mm") + " · " +
                        QLocale().formattedDataSize(last_->bytes, 1, QLocale::DataSizeTraditionalFormat));
}

}  // namespace velmar::sample
