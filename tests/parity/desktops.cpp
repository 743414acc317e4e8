// SPDX-License-Identifier: MIT
#include "parity/desktops.h"

#include <QApplication>
#include <QLineEdit>
#include <algorithm>
#include <array>
#include <cstdio>

#include "desktop/headless/headless_desktop.h"
#include "desktop/qt/qt_desktop.h"
#include "desktop/qt/style.h"
#include "host/script/headless_user.h"
#include "host/script/qt_user.h"

namespace zqn::parity {

namespace {

/// Whatever the toolkit has to say is a defect, but what it lacks on a machine without a screen or a login.
void tell(QtMsgType, const QMessageLogContext&, const QString& words) {
  if (words.startsWith(QLatin1String("This plugin does not support"))) return;
  if (words.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR"))) return;
  std::fprintf(stderr, "the toolkit says: %s\n", qPrintable(words));
}

void prepareQt() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(tell);
  static int count = 1;
  static char name[] = "parity";
  static char* names[] = {name, nullptr};
  // Lives until the process ends, which never takes it down: each run is a copy of the process.
  static auto* const application = new QApplication(count, names);
  qt::configureApplication(*application);
  // Fonts are read once, not in each run.
  QLineEdit("Äx").grab();
}

void runQt(const OnDesktop& act) {
  qt::QtDesktop desktop;
  script::QtUser hands(desktop);
  act(desktop, hands);
}

void runHeadless(const OnDesktop& act) {
  headless::HeadlessDesktop desktop;
  script::HeadlessUser hands(desktop);
  act(desktop, hands);
}

constexpr std::array<DesktopEntry, 2> entries{{{"headless", [] {}, runHeadless}, {"qt", prepareQt, runQt}}};

}  // namespace

std::span<const DesktopEntry> desktops() noexcept { return entries; }

const DesktopEntry* findDesktop(std::string_view name) noexcept {
  const auto found = std::ranges::find(entries, name, &DesktopEntry::name);
  return found != entries.end() ? &*found : nullptr;
}

}  // namespace zqn::parity
