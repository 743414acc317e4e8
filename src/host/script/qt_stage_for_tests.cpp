// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>

#include "host/script/qt_user.h"
#include "host/script/stage_for_tests.h"

namespace zqn::script {

namespace {

/// Whatever the toolkit has to say is a defect, but what the platform without a display cannot do.
void failOnWarning(QtMsgType, const QMessageLogContext&, const QString& words) {
  if (words.startsWith(QLatin1String("This plugin does not support"))) return;
  ADD_FAILURE() << "the toolkit says: " << words.toStdString();
}

/// One application for all tests of the process; on no display unless the caller chose one.
void haveApplication() {
  static int count = 1;
  static char name[] = "test";
  static char* names[] = {name, nullptr};
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication application(count, names);
  static const bool ready = [] {
    qt::configureApplication(application);
    qInstallMessageHandler(failOnWarning);
    return true;
  }();
  static_cast<void>(ready);
}

class QtStage : public Stage {
 public:
  Desktop& desktop() override { return desktop_; }
  UserInput& input() override { return input_; }
  bool hasScreen() const override { return true; }

 private:
  qt::QtDesktop desktop_;
  QtUser input_{desktop_};
};

}  // namespace

std::unique_ptr<Stage> makeStage() {
  haveApplication();
  return std::make_unique<QtStage>();
}

}  // namespace zqn::script
