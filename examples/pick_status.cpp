// SPDX-License-Identifier: MIT
//
// Another program that lets a person pick a sales status, and what it needs for it: a desktop, a connection,
// and a session of its own.
//
//     pick_status waren.sqlite 10
#include <QApplication>
#include <iostream>

#include "ado/sqlite/sqlite.h"
#include "desktop/qt/qt_desktop.h"
#include "frontend/orb_dialog.h"
#include "runtime/convert.h"

namespace {

/// No settings, one user who may change everything.
class PlainSession : public zqn::Session {
 public:
  explicit PlainSession(const char* file)
      : connection_(zqn::ado::openSqlite(file, {.mode = zqn::ado::SqliteOptions::Mode::Existing})) {}
  zqn::String GetSetting(zqn::StringView, zqn::StringView, zqn::StringView Default, std::int32_t) override {
    return zqn::String(Default);
  }
  void SaveSetting(zqn::StringView, zqn::StringView, zqn::StringView, const zqn::Variant&,
                   std::int32_t) override {}
  zqn::Ref<zqn::ado::Connection> SessionConnection() override { return connection_; }
  bool UserIsAdmin() override { return true; }

 private:
  zqn::Ref<zqn::ado::Connection> connection_;
};

}  // namespace

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
