// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "host/script/qt_user.h"
#include "testing/script/script_desktop.h"

namespace zqn::script {

namespace {

/// Whatever the toolkit has to say is a defect, but what the platform without a display cannot do.
void failOnWarning(QtMsgType, const QMessageLogContext&, const QString& words) {
  if (words.startsWith(QLatin1String("This plugin does not support"))) return;
  ADD_FAILURE() << "the toolkit says: " << words.toStdString();
}

/// One application for all tests of the process, gone before the program ends; on no display unless the
/// caller chose one.
class Application : public ::testing::Environment {
 public:
  void SetUp() override {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, names_);
    qt::configureApplication(*application_);
    qInstallMessageHandler(failOnWarning);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[5] = "test";
  char* names_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const ::testing::Environment* const application = ::testing::AddGlobalTestEnvironment(new Application);

class QtScriptDesktop : public ScriptDesktop {
 public:
  Desktop& desktop() override { return desktop_; }
  UserInput& input() override { return input_; }
  bool hasScreen() const override { return true; }

 private:
  qt::QtDesktop desktop_;
  QtUser input_{desktop_};
};

}  // namespace

std::unique_ptr<ScriptDesktop> makeScriptDesktop() { return std::make_unique<QtScriptDesktop>(); }

}  // namespace zqn::script
