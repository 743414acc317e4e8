// SPDX-License-Identifier: MIT
//
// Another program that edits price lists, where customers are looked up in a window of the program's own.
//
//     price_lists waren.sqlite
#include <QApplication>
#include <QInputDialog>
#include <iostream>

#include "ado/recordset.h"
#include "desktop/qt/qt_desktop.h"
#include "frontend/enumerations.h"
#include "frontend/orb_dialog.h"
#include "own_auskunft.h"
#include "plain_session.h"
#include "runtime/convert.h"

/// The customers' numbers, in their order.
QStringList customers(const zqn::Ref<zqn::ado::Connection>& connection) {
  QStringList numbers;
  zqn::ado::Recordset rs;
  rs.Open(u"SELECT Kundennummer FROM Kundenstamm ORDER BY Kundennummer", connection);
  for (; !rs.IsEOF(); rs.MoveNext())
    numbers += QString::fromStdU16String(zqn::CStr(rs.Fields(u"Kundennummer").Value()));
  return numbers;
}

int main(int argc, char** argv) try {
  QApplication app(argc, argv);
  zqn::qt::configureApplication(app);
  zqn::qt::QtDesktop desktop;
  const zqn::Desktop::Scope scope(desktop);

  const auto session = zqn::Ref<PlainSession>::make(argc > 1 ? argv[1] : "waren.sqlite");
  offerOwnAuskunft([&session](const zqn::String& title) -> std::optional<zqn::String> {
    bool taken = false;
    const QString number =
        QInputDialog::getItem(QApplication::activeWindow(), QString::fromStdU16String(title),
                              "Kunde:", customers(session->SessionConnection()), 0, true, &taken);
    return taken ? std::optional(number.toStdU16String()) : std::nullopt;
  });
  zqn::ORBDialog dialog;
  dialog.Session(session);
  zqn::VariantArray param{u""};
  std::cout << zqn::toUtf8(zqn::CStr(dialog.Show(zqn::zqnCommonDialogPreislisten, param))) << "\n";
} catch (const zqn::RuntimeError& failure) {
  std::cerr << failure.what() << "\n";
  return 1;
}
