// SPDX-License-Identifier: MIT
//
// Days by code, typed, and picked by keys.
#include "forms/tdb_date.h"

#include "runtime/convert.h"
#include "runtime/locale.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"txtKey", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"tdbdValidOf", ControlKind::TDBDate, u"Gültig von:", 3240, 3300, 1755, 285},
};

Locale onTheFifthOfMarch() {
  Locale fixed = Locale::german();
  fixed.now = [] { return Date{dateSerial(2026, 3, 5).days + 0.75}; };
  return fixed;
}

class DateTest : public FormTest {
 protected:
  DateTest() {
    watchChange(date);
    date.ValueChange = [this] { note("=" + valueText()); };
  }
  std::string valueText() const {
    return date.Value().isNull() ? "Null" : toUtf8(Format(date.Value(), u"yyyy-mm-dd"));
  }
  void showAtDate(const std::function<void()>& acts) {
    show(form, [&] {
      date.SetFocus();
      happened();
      acts();
    });
    happened();
  }
  /// The value once this text was typed into the empty field.
  std::string typed(StringView text) {
    press(key::F3);
    type(text);
    happened();
    return valueText();
  }

  Locale::Scope today_{onTheFifthOfMarch()};
  SampleForm form{roster};
  TDBDate& date = form.Get<TDBDate>(u"tdbdValidOf");
};

using DayByCode = DateTest;
using DayTyped = DateTest;
using DayByKey = DateTest;

// ---- by code

TEST_F(DayByCode, StartsAsNullAndShowsTheMask) {
  EXPECT_TRUE(date.Value().isNull());
  EXPECT_EQ(date.Text(), u"__.__.____");
  EXPECT_EQ(date.Caption(), u"Gültig von:");
  EXPECT_EQ(date.Property(u"Caption"), Variant(u"Gültig von:"));
}

TEST_F(DayByCode, DropsTheTimeAndRaisesValueChangeWhenTheDayDiffers) {
  date.Value(Variant(Now()));
  EXPECT_EQ(date.Value(), Variant(dateSerial(2026, 3, 5)));
  EXPECT_EQ(date.Text(), u"05.03.2026");
  EXPECT_EQ(happened(), "=2026-03-05");
  date.Value(Variant(Today()));
  EXPECT_EQ(happened(), "");
  date.Value(Null);
  EXPECT_EQ(date.Text(), u"__.__.____");
  EXPECT_EQ(happened(), "=Null");
  date.Value(Variant(Date{-1.25}));
  EXPECT_EQ(date.Text(), u"29.12.1899");
  happened();
}

TEST_F(DayByCode, ConvertsATextAndAnythingElseIsError13) {
  date.Value(Variant(u"24.12.2025"));
  EXPECT_EQ(valueText(), "2025-12-24");
  happened();
  EXPECT_EQ(errorNumberOf([&] { date.Value(Variant(u"Weihnachten")); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([&] { date.Value(Variant(1e9)); }), error::Overflow);
  EXPECT_EQ(valueText(), "2025-12-24");
  EXPECT_EQ(happened(), "");
}

TEST_F(DayByCode, CanBeTypedOverWhileItHasTheFocus) {
  showAtDate([&] {
    date.Value(Variant(Today()));
    date.Value(Null);
    EXPECT_EQ(date.Text(), u"") << "the mask stands there without the focus alone";
    type(u"1.2.");
    EXPECT_EQ(valueText(), "2026-02-01");
  });
}

// ---- typed

TEST_F(DayTyped, WithPoints) {
  showAtDate([&] {
    EXPECT_EQ(typed(u"24.12.2025"), "2025-12-24");
    EXPECT_EQ(typed(u"4.1.2025"), "2025-01-04");
    EXPECT_EQ(typed(u"29.2.2024"), "2024-02-29");
    EXPECT_EQ(typed(u"1.1.100"), "0100-01-01");
    EXPECT_EQ(typed(u"31.12.9999"), "9999-12-31");
  });
}

TEST_F(DayTyped, WithoutPoints) {
  showAtDate([&] {
    EXPECT_EQ(typed(u"24122025"), "2025-12-24");
    EXPECT_EQ(typed(u"241225"), "2025-12-24");
    EXPECT_EQ(typed(u"2412"), "2026-12-24");
  });
}

TEST_F(DayTyped, CompletesTheYear) {
  showAtDate([&] {
    EXPECT_EQ(typed(u"1.2.29"), "2029-02-01");
    EXPECT_EQ(typed(u"1.2.30"), "1930-02-01");
    EXPECT_EQ(typed(u"1.2."), "2026-02-01");
    EXPECT_EQ(typed(u"1.2"), "2026-02-01");
  });
}

TEST_F(DayTyped, IsReadAsDayMonthYearAlone) {
  showAtDate([&] {
    EXPECT_EQ(typed(u"31.2.20"), "Null") << "never the 20th of February 1931";
    EXPECT_EQ(typed(u"2.13.2025"), "Null") << "nor the 2nd of January, which stood there on the way";
    EXPECT_EQ(typed(u"29.2.2025"), "Null") << "nor the 29th of February 2020";
    EXPECT_EQ(typed(u"99999999"), "Null");
    EXPECT_EQ(typed(u"0.1.2025"), "Null");
    EXPECT_EQ(typed(u"1.2.3.4"), "Null");
    EXPECT_EQ(typed(u"..."), "Null");
  });
}

TEST_F(DayTyped, TakesDigitsAndPointsAloneAndTenOfThem) {
  showAtDate([&] {
    type(u"2a4/1 2.2-0");
    EXPECT_EQ(date.Text(), u"2412.20");
    press(key::F3);
    type(u"24.12.20256");
    EXPECT_EQ(date.Text(), u"24.12.2025");
    happened();
    type(u"x7");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(DayTyped, ValueFollowsAsSoonAsTheTextIsADay) {
  showAtDate([&] {
    type(u"1.2");
    EXPECT_EQ(happened(), "tdbdValidOf_Change tdbdValidOf_Change tdbdValidOf_Change =2026-02-01");
    press(key::Backspace);
    EXPECT_EQ(happened(), "tdbdValidOf_Change =Null");
    pressCtrl(u'a');
    press(key::Delete);
    EXPECT_EQ(happened(), "tdbdValidOf_Change");
  });
}

TEST_F(DayTyped, LeavingShowsTheWholeDate) {
  showAtDate([&] {
    type(u"010226");
    press(key::Tab);
    EXPECT_EQ(date.Text(), u"01.02.2026");
    press(key::Tab);
    EXPECT_EQ(date.Text(), u"01.02.2026");
    EXPECT_EQ(date.SelLength(), 10) << "all is selected when the focus comes";
  });
}

TEST_F(DayTyped, WhatIsNoDayGivesWayToTheFormerValueWhenTheFocusLeaves) {
  date.Value(Variant(Today()));
  showAtDate([&] {
    type(u"99");
    EXPECT_EQ(valueText(), "2026-03-05");
    press(key::Tab);
    EXPECT_EQ(date.Text(), u"05.03.2026");
    press(key::Tab);
    press(key::Delete);
    press(key::Tab);
    EXPECT_EQ(date.Text(), u"__.__.____");
    EXPECT_EQ(valueText(), "Null");
  });
}

TEST_F(DayTyped, IsPastedWholeOrNotAtAll) {
  showAtDate([&] {
    desktop.copyToClipboard(u"24.12.2025");
    pressCtrl(u'v');
    EXPECT_EQ(valueText(), "2025-12-24");
    press(key::F3);
    desktop.copyToClipboard(u" 1.2.2026\r\n");
    pressCtrl(u'v');
    EXPECT_EQ(date.Text(), u"1.2.2026");
    press(key::F3);
    desktop.copyToClipboard(u"morgen");
    pressCtrl(u'v');
    EXPECT_EQ(date.Text(), u"");
  });
}

// ---- by key

TEST_F(DayByKey, F2TakesTodayAndF3Empties) {
  showAtDate([&] {
    press(key::F2);
    EXPECT_EQ(date.Text(), u"05.03.2026");
    EXPECT_EQ(happened(), "tdbdValidOf_Change =2026-03-05");
    press(key::F2);
    EXPECT_EQ(happened(), "");
    press(key::F3);
    EXPECT_EQ(date.Text(), u"");
    EXPECT_EQ(happened(), "tdbdValidOf_Change =Null");
    press(key::F2, shift::Ctrl);
    EXPECT_EQ(valueText(), "Null");
  });
}

TEST_F(DayByKey, ACalendarsDayIsTakenLikeATypedOne) {
  showAtDate([&] {
    date.userChose(Variant(dateSerial(2026, 4, 1)));
    EXPECT_EQ(date.Text(), u"01.04.2026");
    EXPECT_EQ(happened(), "tdbdValidOf_Change =2026-04-01");
  });
}

TEST_F(DayByKey, OtherKeysThatDoNotEditRaiseNothing) {
  date.Value(Variant(Today()));
  showAtDate([&] {
    for (const int code : {key::F4, key::Up, key::Down, key::Left, key::Right, key::Enter}) press(code);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(valueText(), "2026-03-05");
  });
}

}  // namespace
}  // namespace zqn::testing
