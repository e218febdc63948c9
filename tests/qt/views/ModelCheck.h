#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QString>
#include <QtGlobal>
#include <cstring>

namespace velmar::qt {

/// As long as it lives, whatever Qt's model tester finds wrong with the model fails the test.
class ModelCheck {
 public:
  explicit ModelCheck(QAbstractItemModel& model)
      : previous_(qInstallMessageHandler(&ModelCheck::Take)),
        tester_(&model, QAbstractItemModelTester::FailureReportingMode::Warning) {}
  ModelCheck(const ModelCheck&) = delete;
  ModelCheck& operator=(const ModelCheck&) = delete;
  ~ModelCheck() { qInstallMessageHandler(previous_); }

 private:
  static void Take(QtMsgType, const QMessageLogContext& context, const QString& message) {
    if (context.category != nullptr && std::strcmp(context.category, "qt.modeltest") == 0) {
      ADD_FAILURE() << message.toStdString();
    }
  }

  QtMessageHandler previous_;
  QAbstractItemModelTester tester_;
};

}  // namespace velmar::qt
