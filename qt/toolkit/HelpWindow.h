#pragma once

#include <QDialog>

class QTextBrowser;

namespace velmar::qt {

/// Shows one help topic beside the window that it belongs to, which stays usable.
class HelpWindow : public QDialog {
 public:
  explicit HelpWindow(QWidget* parent);

  /// `html` is the whole topic; links go to places within it.
  void ShowTopic(const QString& html);

 private:
  QTextBrowser* text_;
};

}  // namespace velmar::qt
