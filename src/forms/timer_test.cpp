// SPDX-License-Identifier: MIT
//
// When a timer ticks.
#include "forms/timer.h"

#include "forms/message_box.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

using std::chrono::milliseconds;

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"Timer1", ControlKind::Timer, u"", 0, 0, 0, 0, {.Interval = 10}},
};

class Timers : public FormTest {
 protected:
  Timers() {
    desktop.clock([this] { return milliseconds(time); });
    timer.Tick = [this] { note("tick" + std::to_string(time)); };
  }
  /// Shows the form; time passes by one millisecond whenever nothing else is left to do.
  void letPass(int until, const std::function<void()>& at = {}) {
    desktop.whenIdle([this, until, at] {
      ++time;
      if (desktop.openMessageBox() != nullptr) {
        if (time == until) desktop.answer(MsgBoxResult::OK);
      } else if (time > until) {
        form.UnloadMe();
      } else if (at) {
        at();
      }
    });
    form.Show();
  }

  SampleForm form{roster};
  Timer& timer = form.Get<Timer>(u"Timer1");
  int time = 1000;
};

TEST_F(Timers, TickEveryIntervalOnceTheFormStandsOpen) {
  letPass(1035);
  EXPECT_EQ(happened(), "tick1010 tick1020 tick1030");
}

TEST_F(Timers, StopWhenDisabledAndBeginAnewWhenEnabled) {
  timer.Tick = [this] {
    note("tick" + std::to_string(time));
    timer.Enabled(false);
  };
  letPass(1040, [this] {
    if (time == 1022) timer.Enabled(true);
  });
  EXPECT_EQ(happened(), "tick1010 tick1032");
}

TEST_F(Timers, AnIntervalOfZeroIsOff) {
  timer.Interval(0);
  letPass(1030, [this] {
    if (time == 1012) timer.Interval(5);
  });
  EXPECT_EQ(happened(), "tick1017 tick1022 tick1027");
  EXPECT_EQ(errorNumberOf([&] { timer.Interval(-1); }), error::InvalidPropertyValue);
}

TEST_F(Timers, TickBehindAMessageBox) {
  bool asked = false;
  letPass(1039, [this, &asked] {
    if (!std::exchange(asked, true)) MsgBox(u"Warten", msgbox::OKOnly, u"Abfrage");
  });
  EXPECT_EQ(happened(), "[Warten] tick1010 tick1020 tick1030");
}

TEST_F(Timers, AnErrorInTheHandlerIsToldByItsName) {
  timer.Tick = [this] {
    timer.Enabled(false);
    throw RuntimeError(error::TypeMismatch);
  };
  letPass(1015);
  EXPECT_EQ(happened(), "!Timer1_Timer:13");
}

TEST_F(Timers, AreNeverSeenAndNeverReached) {
  EXPECT_FALSE(timer.isShown());
  EXPECT_FALSE(timer.takesFocus());
  EXPECT_EQ(timer.Property(u"Interval"), Variant(std::int32_t{10}));
}

}  // namespace
}  // namespace zqn::testing
