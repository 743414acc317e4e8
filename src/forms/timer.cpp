// SPDX-License-Identifier: MIT
#include "forms/timer.h"

#include "runtime/convert.h"

namespace zqn {

Timer::Timer(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex), interval_(design.other.Interval) {
  Visible(false);
}

void Timer::Interval(int milliseconds) {
  if (milliseconds < 0) throw RuntimeError(error::InvalidPropertyValue);
  interval_ = milliseconds;
  due_.reset();
}

std::optional<Timer::Time> Timer::due(Time now) {
  if (!Enabled() || interval_ == 0) {
    due_.reset();
  } else if (!due_) {
    due_ = now + Time(interval_);
  }
  return due_;
}

void Timer::tick(Time now) {
  due_ = now + Time(interval_);
  Tick.raise();
}

const PropertyEntry* Timer::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Interval",
       [](const Control& c) { return Variant(std::int32_t{static_cast<const Timer&>(c).Interval()}); },
       [](Control& c, const Variant& value) { static_cast<Timer&>(c).Interval(CLng(value)); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

}  // namespace zqn
