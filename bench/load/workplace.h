// SPDX-License-Identifier: MIT
//
// The workplace of one clerk: a headless desktop, a session and a connection of his own, and the dialogs,
// which he works by keys and clicks.
//
//     Workplace workplace(connectionString, u"clerk7", tally);
//     workplace.show(21, {u"10"}, [&] {
//       workplace.click(u"Kurztext");
//       workplace.type(u"neu");
//       workplace.press(key::F9);
//     });
#pragma once

#include <functional>

#include "ado/connection.h"
#include "desktop/headless/headless_desktop.h"
#include "frontend/orb_dialog.h"
#include "recording.h"
#include "tally.h"
#include "watch.h"

namespace zqn::load {

class Workplace : private DesktopListener {
 public:
  /// Connects. Boxes that no action expects and run-time errors that a dialog shows are counted in `tally`
  /// under "shown.".
  Workplace(const String& connectionString, const String& user, Tally& tally);
  ~Workplace() override;
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;

  /// Shows a dialog; `acts` runs when it waits for the person, then it is closed unless that has happened.
  /// Questions are answered with Yes. Gives element 0 of `param` as it came back.
  Variant show(std::int32_t kind, VariantArray param, std::function<void()> acts);

  void click(StringView control);
  void press(int code, int times = 1);
  void type(StringView text);

  const Ref<ado::Connection>& connection() const noexcept { return connection_; }
  /// What has happened below the dialogs.
  Watch& watch() noexcept { return watch_; }
  /// The runs of statements since it was last emptied.
  Recording& recording() noexcept { return recording_; }

 private:
  void messageBoxOpened(const MessageBox& box) override;
  bool runtimeErrorRaised(Form& form, StringView procedure, const RuntimeError& failure) override;
  void idle();
  void record(StringView statement, std::span<const ado::Value> parameters);

  Tally& tally_;
  Watch watch_;
  Recording recording_;
  headless::HeadlessDesktop desktop_;
  Desktop::Scope scope_{desktop_};
  Ref<ado::Connection> connection_;
  ORBDialog dialog_;
  std::function<void()> acts_;
};

}  // namespace zqn::load
