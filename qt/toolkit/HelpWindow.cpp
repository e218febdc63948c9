#include "qt/toolkit/HelpWindow.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace velmar::qt {

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint),
      text_(new QTextBrowser(this)) {
  setObjectName("ayuda");
  setWindowTitle("Ayuda del asistente de exportación");
  setModal(false);
  text_->setAccessibleName("Texto de la ayuda");
  text_->setOpenLinks(false);
  QObject::connect(text_, &QTextBrowser::anchorClicked, this,
                   [this](const QUrl& link) { text_->scrollToAnchor(link.fragment()); });
  auto* buttons = new QDialogButtonBox(this);
  QPushButton* close = buttons->addButton("&Cerrar", QDialogButtonBox::RejectRole);
  close->setDefault(true);
  QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addWidget(text_);
  column->addWidget(buttons);
  const QFontMetrics font = fontMetrics();
  resize(QSize(font.averageCharWidth() * 115, font.lineSpacing() * 40)
             .boundedTo(screen()->availableSize() - QSize(40, 80)));
}

void HelpWindow::ShowTopic(const QString& html) {
  text_->setHtml(html);
  show();
  raise();
  activateWindow();
  text_->setFocus();
}

}  // namespace velmar::qt
