// SPDX-License-Identifier: MIT
//
// A day as fourteen digits: what is shown, what typing makes of it, when the change is told.
#include "forms/date_input.h"

#include "runtime/convert.h"
#include "runtime/locale.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"von", ControlKind::DateInput, u"", 0, 0, 1185, 315},
    {u"bis", ControlKind::DateInput, u"", 0, 400, 1185, 315},
};

class Dates : public FormTest {
 protected:
  Dates() {
    von.ValueChange = [this] { note(shown(von)); };
  }
  /// "text=Value", as the event finds it.
  static std::string shown(const DateInput& date) {
    return toUtf8(date.Text()) + "=" + (date.Value().isNull() ? "Null" : toUtf8(CStr(date.Value())));
  }

  Locale::Scope today{[] {
    Locale locale = Locale::german();
    locale.now = [] { return dateSerial(2026, 3, 5); };
    return locale;
  }()};
  SampleForm form{roster};
  DateInput& von = form.Get<DateInput>(u"von");
  DateInput& bis = form.Get<DateInput>(u"bis");
};

TEST_F(Dates, AssignedDigitsAreShownAsADayAndKept) {
  von.Value(u"20260301123456");
  EXPECT_EQ(happened(), "01.03.2026=20260301123456");
  von.Value(u"20260301123456");
  EXPECT_EQ(happened(), "");
  show(form, [&] {
    press(key::Tab);
    EXPECT_EQ(shown(von), "01.03.2026=20260301123456") << "the focus alone is no typing";
  });
}

TEST_F(Dates, WhatIsNoDayShowsNothingAndIsKept) {
  for (const StringView text :
       {u"99999999999999", u"00000000000000", u"20260230000000", u"2026", u"unbegrenzt"}) {
    von.Value(text);
    EXPECT_EQ(von.Text(), u"") << toUtf8(text);
    EXPECT_EQ(von.Value(), Variant(text));
    EXPECT_TRUE(von.day().isNull());
  }
  show(form, [&] {
    press(key::Tab);
    EXPECT_EQ(von.Value(), Variant(u"unbegrenzt"));
  });
  happened();
}

TEST_F(Dates, NullAndTheEmptyTextAreNoDay) {
  von.Value(u"20260301000000");
  von.Value(Null);
  EXPECT_EQ(happened(), "01.03.2026=20260301000000 =Null");
  von.Value(u"");
  EXPECT_EQ(happened(), "");
  EXPECT_TRUE(von.Value().isNull());
}

TEST_F(Dates, TypingGivesFourteenDigitsWithoutATime) {
  show(form, [&] {
    type(u"05032026");
    EXPECT_EQ(von.Value(), Variant(u"20260305000000"));
    bis.Value(u"20251231235959");
    press(key::Tab);
    EXPECT_EQ(shown(von), "05.03.2026=20260305000000");
    type(u"1.4.27");
    EXPECT_EQ(bis.Value(), Variant(u"20270401000000"));
    happened();
  });
}

TEST_F(Dates, TheChangeIsToldWhenTheTextIsAWholeDayOrEmpty) {
  von.Value(u"20260301000000");
  happened();
  show(form, [&] {
    type(u"3");
    EXPECT_EQ(happened(), "");
    EXPECT_TRUE(von.Value().isNull()) << "no day gives Null";
    type(u"00427");
    EXPECT_EQ(happened(), "3004=20260430000000 300427=20270430000000")
        << "four digits are a day of this year";
  });
}

TEST_F(Dates, WhatIsNoDayIsEmptyWhenTheFocusHasLeft) {
  von.Value(u"20260301000000");
  show(form, [&] {
    type(u"31.2.26");
    press(key::Tab);
    EXPECT_EQ(shown(von), "=Null");
    happened();
  });
}

TEST_F(Dates, EmptyingIsToldAlsoAfterAHalfDay) {
  show(form, [&] {
    type(u"3");
    press(key::Backspace);
    EXPECT_EQ(happened(), "=Null");
  });
}

TEST_F(Dates, F2IsTodayAndF3Empties) {
  show(form, [&] {
    press(key::F2);
    EXPECT_EQ(happened(), "05.03.2026=20260305000000");
    press(key::F3);
    EXPECT_EQ(happened(), "=Null");
  });
}

TEST_F(Dates, OnlyDigitsAndPointsCanBeTyped) {
  show(form, [&] {
    type(u"x0y5z0326");
    EXPECT_EQ(von.Value(), Variant(u"20260305000000"));
    happened();
  });
}

TEST_F(Dates, AreReachedByName) {
  von.Property(u"Value", Variant(u"20260301000000"));
  EXPECT_EQ(von.Property(u"Value"), Variant(u"20260301000000"));
  EXPECT_EQ(von.Property(u"Text"), Variant(u"01.03.2026"));
  happened();
}

}  // namespace
}  // namespace zqn::testing
