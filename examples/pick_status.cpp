// SPDX-License-Identifier: MIT
//
// Another program that lets a person pick a sales status, and what it needs for it: a desktop and a session.
//
//     pick_status waren.sqlite 10
#include <QApplication>
#include <iostream>

#include "desktop/qt/qt_desktop.h"
#include "frontend/orb_dialog.h"
#include "plain_session.h"
#include "runtime/convert.h"

int main(int argc, char** argv) try {
  QApplication app(argc, argv);
  zqn::qt::configureApplication(app);
  zqn::qt::QtDesktop desktop;
  const zqn::Desktop::Scope scope(desktop);

  zqn::ORBDialog dialog;
  dialog.Session(zqn::Ref<PlainSession>::make(argc > 1 ? argv[1] : "waren.sqlite"));
  zqn::VariantArray param{zqn::fromUtf8(argc > 2 ? argv[2] : "")};
  std::cout << zqn::toUtf8(zqn::CStr(dialog.Show(21, param))) << "\n";
} catch (const zqn::RuntimeError& failure) {
  std::cerr << failure.what() << "\n";
  return 1;
}
