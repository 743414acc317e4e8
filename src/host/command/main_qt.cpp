// SPDX-License-Identifier: MIT
//
// The windows of `zqn-dialog`: the desk, and `show` on the Qt desktop. `zqn-dialog` starts it with its own
// arguments; it understands all of them, and may be started by itself.
#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "desktop/qt/qt_desktop.h"
#include "desktop/qt/style.h"
#include "host/command/program.h"
#include "host/command/show_command.h"
#include "host/desk/desk_window.h"
#include "host/script/qt_user.h"

namespace {

using namespace zqn;
using namespace zqn::host;

bool isSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

/// Qt would end the process with a signal. A script needs no screen: it runs on the offscreen platform then.
void requirePlatform(const Options& options) {
  if (isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM")) return;
  if (options.command != Command::Show || !options.show.script)
    throw CommandFailure(ExitStatus::CannotOpen,
                         "no display: DISPLAY is not set; run a script, or use --ui headless");
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
}

void endOnFatal(QtMsgType type, const QMessageLogContext&, const QString& message) {
  std::fprintf(stderr, "%s\n", qPrintable(message));
  if (type == QtFatalMsg) std::_Exit(static_cast<int>(ExitStatus::CannotOpen));
}

ExitStatus runDesk(const Options& options) {
  const Locale::Scope locale(localeOf(options.host));
  offerCompanions(options.host);
  DeskWindow desk(options.host);
  desk.show();
  QApplication::exec();
  return ExitStatus::Done;
}

}  // namespace

int main(int argc, char** argv) {
  return runProgram(argc, argv, [&](const Options& options) {
    requirePlatform(options);
    qInstallMessageHandler(endOnFatal);
    // The command line is ours alone: Qt sees the name of the program and nothing else.
    int one = 1;
    QApplication app(one, argv);
    qt::configureApplication(app);
    qt::QtDesktop desktop;
    if (options.command == Command::Desk) {
      const Desktop::Scope scope(desktop);
      return runDesk(options);
    }
    script::QtUser input(desktop);
    return showDialog(options, desktop, input);
  });
}
