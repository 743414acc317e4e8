// SPDX-License-Identifier: MIT
//
// A timer of a form: as long as it is enabled it ticks, one interval after the form has come up, or after it
// was enabled, and then every interval. It ticks in any modal loop, when nothing else is left to do, behind a
// message box, too. It is never seen.
//
//     Timer1.Tick = [this] { Timer1_Timer(); };
#pragma once

#include <chrono>
#include <optional>

#include "forms/control.h"

namespace zqn {

class Timer : public Control {
 public:
  Timer(Form& form, const ControlDesign& design, int tabIndex);

  /// Milliseconds between two ticks; 0 is off.
  int Interval() const noexcept { return interval_; }
  /// The next tick is a whole interval away. Error 380 when negative.
  void Interval(int milliseconds);

  /// One interval has passed. Goes by the name of Timer.
  Event<> Tick{*this, u"Timer"};

  bool takesFocus() const noexcept override { return false; }
  bool isDrawn() const noexcept override { return false; }

  // ---- for desktops

  using Time = std::chrono::milliseconds;
  /// When it ticks next, on the desktop's clock; nullopt while it is off.
  std::optional<Time> due(Time now);
  /// Begins the next interval and raises the event.
  void tick(Time now);

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  int interval_;
  std::optional<Time> due_;
};

}  // namespace zqn
