#include "qt/toolkit/Application.h"

#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace velmar::qt {
namespace {

bool IsUserEvent(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  const QLocale spanish(QLocale::Spanish, QLocale::Spain);
  QLocale::setDefault(spanish);
  auto* translator = new QTranslator(this);
  if (translator->load(spanish, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    installTranslator(translator);
  }
}

bool Application::notify(QObject* receiver, QEvent* event) {
  if (IsUserEvent(event->type())) ++userEvents_;
  if (!failed_) return QApplication::notify(receiver, event);
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    const auto handler = failed_;
    handler(std::current_exception());
    return true;
  }
}

}  // namespace velmar::qt
