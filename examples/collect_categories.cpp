// SPDX-License-Identifier: MIT
//
// Another program that lets a person pick several CRM categories, and prints them.
//
//     collect_categories waren.sqlite
#include <QApplication>
#include <iostream>

#include "collected_categories.h"
#include "desktop/qt/qt_desktop.h"
#include "plain_session.h"

int main(int argc, char** argv) try {
  QApplication app(argc, argv);
  zqn::qt::configureApplication(app);
  zqn::qt::QtDesktop desktop;
  const zqn::Desktop::Scope scope(desktop);

  zqn::ORBDialog dialog;
  dialog.Session(zqn::Ref<PlainSession>::make(argc > 1 ? argv[1] : "waren.sqlite"));
  for (const zqn::String& category : collectedCategories(dialog)) std::cout << zqn::toUtf8(category) << "\n";
} catch (const zqn::RuntimeError& failure) {
  std::cerr << failure.what() << "\n";
  return 1;
}
