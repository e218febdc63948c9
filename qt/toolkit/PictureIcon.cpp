#include "qt/toolkit/PictureIcon.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QPixmap>

#include "platform/toolkit/Picture.h"

namespace velmar::qt {

QIcon PictureIcon(const toolkit::Picture& picture) {
  QIcon icon;
  if (!picture.Empty()) {
    QByteArray bytes = QByteArray::fromStdString(picture.Bytes());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    do {
      const QImage image = reader.read();
      if (!image.isNull()) icon.addPixmap(QPixmap::fromImage(image));
    } while (reader.jumpToNextImage());
  }
  return icon.isNull() ? QGuiApplication::windowIcon() : icon;
}

}  // namespace velmar::qt
