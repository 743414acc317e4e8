// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

#include "desktop/qt/style.h"

namespace {

/// Whatever Qt has to say is a defect of ours, but what the offscreen platform cannot do.
void fail(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (text.startsWith(QLatin1String("This plugin does not support"))) return;
  ADD_FAILURE() << "Qt says: " << text.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  zqn::qt::configureApplication(app);
  qInstallMessageHandler(fail);
  return RUN_ALL_TESTS();
}
