// SPDX-License-Identifier: MIT
//
// The desktops that must agree. A further one is a further row of the table in desktops.cpp, and one more
// entry of ctest.
//
//     for (const DesktopEntry& entry : desktops()) entry.prepare();
//     desktops()[1].run([&](Desktop& desktop, script::UserInput& hands) { ... });
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "forms/desktop.h"
#include "host/script/user_input.h"

namespace zqn::parity {

using OnDesktop = std::function<void(Desktop&, script::UserInput&)>;

struct DesktopEntry {
  std::string_view name;
  /// Once in a process that runs cases, before it forks one for each run: what takes long.
  void (*prepare)();
  /// Makes the desktop with the hands of a scripted user, and calls.
  void (*run)(const OnDesktop&);
};

/// The first one is where scripts are thought up: it must not need a screen.
std::span<const DesktopEntry> desktops() noexcept;
/// nullptr for a name that is none.
const DesktopEntry* findDesktop(std::string_view name) noexcept;

}  // namespace zqn::parity
