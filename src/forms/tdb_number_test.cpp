// SPDX-License-Identifier: MIT
//
// Numbers by code and typed: what the field shows, what it takes, and which events tell of it.
#include "forms/tdb_number.h"

#include "runtime/convert.h"
#include "runtime/locale.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"txtKey", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"tdbnSkTage(0)", ControlKind::TDBNumber, u"", 0, 300, 525, 285, {.Format = u"###0;;0;0"}},
    {u"tdbnSkTage(1)", ControlKind::TDBNumber, u"", 0, 600, 525, 285, {.Format = u"###0;;0;0"}},
    {u"tdbnPercent", ControlKind::TDBNumber, u"", 0, 900, 585, 285, {.Format = u"##0.00;(##0.00);0;0"}},
};

class NumberTest : public FormTest {
 protected:
  NumberTest() {
    for (TDBNumber* each : {&days, &moreDays, &percent}) {
      watchChange(*each);
      each->ValueChange = [this, each] {
        note("=" + (each->Value().isNull() ? "Null" : toUtf8(CStr(each->Value()))));
      };
    }
  }
  /// Shows the form with the focus in this field.
  void showAt(TDBNumber& field, const std::function<void()>& acts) {
    show(form, [&] {
      field.SetFocus();
      happened();
      acts();
    });
    happened();
  }
  /// The field's text after these characters were typed over it.
  String typedInto(TDBNumber& field, StringView text) {
    pressCtrl(u'a');
    press(key::Delete);
    type(text);
    return field.Text();
  }
  static Variant number(double value) { return value; }

  SampleForm form{roster};
  TDBNumber& days = form.Get<TDBNumber>(u"tdbnSkTage", 0);
  TDBNumber& moreDays = form.Get<TDBNumber>(u"tdbnSkTage", 1);
  TDBNumber& percent = form.Get<TDBNumber>(u"tdbnPercent");
};

using NumberByCode = NumberTest;
using NumberTyped = NumberTest;
using NumberPasted = NumberTest;
using NumberFocus = NumberTest;

// ---- by code

TEST_F(NumberByCode, StartsAsNullAndShowsZero) {
  EXPECT_TRUE(days.Value().isNull());
  EXPECT_EQ(days.Text(), u"0");
  EXPECT_EQ(percent.Text(), u"0");
}

TEST_F(NumberByCode, ShowsTheFormat) {
  percent.Value(number(2.5));
  EXPECT_EQ(percent.Text(), u"2,50");
  percent.Value(number(-3));
  EXPECT_EQ(percent.Text(), u"(3,00)");
  percent.Value(number(0));
  EXPECT_EQ(percent.Text(), u"0");
  days.Value(number(14));
  EXPECT_EQ(days.Text(), u"14");
}

TEST_F(NumberByCode, RaisesValueChangeAtEachAssignmentAndNeverChange) {
  days.Value(number(14));
  EXPECT_EQ(happened(), "=14");
  days.Value(Variant(std::int32_t{14}));
  EXPECT_EQ(happened(), "=14");
  days.Value(Null);
  EXPECT_EQ(happened(), "=Null");
  days.Value(number(0));
  EXPECT_EQ(happened(), "=0") << "Null is no zero";
}

TEST_F(NumberByCode, ConvertsWhatIsANumber) {
  percent.Value(Variant(u"2,5"));
  EXPECT_EQ(percent.Value(), number(2.5));
  percent.Value(Variant(std::int16_t{3}));
  EXPECT_EQ(percent.Value(), number(3));
  percent.Value(Variant());
  EXPECT_EQ(percent.Value(), number(0));
}

TEST_F(NumberByCode, WhatIsNoNumberIsAnErrorAndTheValueStays) {
  percent.Value(number(3));
  happened();
  EXPECT_EQ(errorNumberOf([&] { percent.Value(Variant(u"drei")); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([&] { percent.Value(Variant(u"1E400")); }), error::Overflow);
  EXPECT_EQ(percent.Value(), number(3));
  EXPECT_EQ(percent.Text(), u"3,00");
  EXPECT_EQ(happened(), "");
}

TEST_F(NumberByCode, BeyondTheFormatIsKeptAndShownInFull) {
  percent.Value(number(1234.5));
  EXPECT_EQ(percent.Value(), number(1234.5));
  EXPECT_EQ(percent.Text(), u"1234,50");
  days.Value(number(-5));
  EXPECT_EQ(days.Value(), number(-5));
  EXPECT_EQ(days.Text(), u"-5");
  percent.Value(number(2.345));
  EXPECT_EQ(percent.Value(), number(2.345));
  EXPECT_EQ(percent.Text(), u"2,35");
}

TEST_F(NumberByCode, TheElementsOfAnArrayAreApart) {
  days.Value(number(1));
  moreDays.Value(number(2));
  EXPECT_EQ(days.Value(), number(1));
  EXPECT_EQ(errorNumberOf([&] { form.control(u"tdbnSkTage", 2); }), error::NoSuchControl);
}

TEST_F(NumberByCode, IsReachedByName) {
  days.Control::Property(u"Value", Variant(u"7"));
  EXPECT_EQ(days.Property(u"value"), number(7));
  EXPECT_EQ(days.Property(u"Text"), Variant(u"7"));
  EXPECT_EQ(errorNumberOf([&] { days.Control::Property(u"Text", Variant(u"8")); }),
            error::PropertyIsReadOnly);
}

// ---- typed

TEST_F(NumberTyped, ReplacesWhatStandsThereAndValueFollowsEachKey) {
  days.Value(number(30));
  showAt(days, [&] {
    type(u"14");
    EXPECT_EQ(happened(), "tdbnSkTage_Change =1 tdbnSkTage_Change =14");
    EXPECT_EQ(days.Text(), u"14");
    press(key::Backspace);
    EXPECT_EQ(happened(), "tdbnSkTage_Change =1");
  });
}

TEST_F(NumberTyped, TheValueIsTheNewOneInsideChange) {
  days.Change = [&] { note(toUtf8(CStr(days.Value()))); };
  days.ValueChange = nullptr;
  showAt(days, [&] {
    type(u"14");
    EXPECT_EQ(happened(), "1 14");
  });
}

TEST_F(NumberTyped, HasNoMoreDigitsThanTheFormat) {
  showAt(days, [&] {
    EXPECT_EQ(typedInto(days, u"12345"), u"1234");
    EXPECT_EQ(typedInto(days, u"1,5"), u"15") << "no decimal sign where there are no decimals";
    EXPECT_EQ(typedInto(days, u"-1"), u"1") << "no sign without a section for negative numbers";
    EXPECT_EQ(typedInto(days, u"1x 2"), u"12");
  });
  showAt(percent, [&] {
    EXPECT_EQ(typedInto(percent, u"1234,567"), u"123,56");
    EXPECT_EQ(typedInto(percent, u"1,2,3"), u"1,23");
    EXPECT_EQ(typedInto(percent, u",5"), u",5");
    EXPECT_EQ(percent.Value(), number(0.5));
    EXPECT_EQ(typedInto(percent, u"-12-"), u"-12");
    EXPECT_EQ(percent.Value(), number(-12));
  });
}

TEST_F(NumberTyped, AKeyThatIsRefusedRaisesNothing) {
  showAt(days, [&] {
    type(u"1234");
    happened();
    type(u"5x-,");
    EXPECT_EQ(days.Text(), u"1234");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(NumberTyped, CommaAndPointAreTheDecimalSignOfTheLocale) {
  showAt(percent, [&] {
    EXPECT_EQ(typedInto(percent, u"2.5"), u"2,5");
    EXPECT_EQ(percent.Value(), number(2.5));
    EXPECT_EQ(typedInto(percent, u"2,5"), u"2,5");
  });
  Locale english = Locale::german();
  english.decimal = u'.';
  english.thousands = u',';
  const Locale::Scope scope(english);
  showAt(percent, [&] {
    EXPECT_EQ(typedInto(percent, u"2,5"), u"2.5");
    EXPECT_EQ(percent.Value(), number(2.5));
    press(key::Tab);
    EXPECT_EQ(percent.Text(), u"2.50");
  });
}

TEST_F(NumberTyped, ASignAloneIsNull) {
  showAt(percent, [&] {
    type(u"-");
    EXPECT_TRUE(percent.Value().isNull());
    type(u",");
    EXPECT_EQ(percent.Text(), u"-,");
    EXPECT_TRUE(percent.Value().isNull());
    type(u"5");
    EXPECT_EQ(percent.Value(), number(-0.5));
  });
}

TEST_F(NumberTyped, KeysThatDoNotEditRaiseNoEvent) {
  days.Value(number(14));
  showAt(days, [&] {
    for (const int code :
         {key::Left, key::Right, key::Home, key::End, key::Up, key::Down, key::F4, key::Enter})
      press(code);
    press(key::Right, shift::Shift);
    pressCtrl(u'c');
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(days.Text(), u"14");
    EXPECT_EQ(days.Value(), number(14));
  });
}

TEST_F(NumberTyped, TheSameNumberInOtherWordsRaisesChangeAlone) {
  percent.Value(number(2.5));
  showAt(percent, [&] {
    press(key::End);
    press(key::Backspace);
    EXPECT_EQ(percent.Text(), u"2,5");
    EXPECT_EQ(happened(), "tdbnPercent_Change");
  });
}

TEST_F(NumberTyped, ValueAssignedInChangeStands) {
  days.Change = [&] { days.Value(number(99)); };
  showAt(days, [&] {
    type(u"1");
    EXPECT_EQ(days.Value(), number(99));
    EXPECT_EQ(days.Text(), u"99");
  });
}

// ---- pasted

TEST_F(NumberPasted, GoesInWholeOrNotAtAll) {
  const auto pasted = [&](StringView text) {
    pressCtrl(u'a');
    press(key::Delete);
    desktop.copyToClipboard(text);
    pressCtrl(u'v');
    return percent.Text();
  };
  showAt(percent, [&] {
    EXPECT_EQ(pasted(u"12,5"), u"12,5");
    EXPECT_EQ(pasted(u" 12.5\r\n"), u"12,5") << "as a cell of a spreadsheet comes";
    EXPECT_EQ(pasted(u"-3"), u"-3");
    EXPECT_EQ(pasted(u"1.234,56"), u"");
    EXPECT_EQ(pasted(u"zwölf"), u"");
    EXPECT_EQ(pasted(u"12 34"), u"");
    EXPECT_EQ(pasted(u"1234"), u"");
    EXPECT_EQ(pasted(String(100'000, u'7')), u"");
    EXPECT_TRUE(percent.Value().isNull());
  });
}

TEST_F(NumberPasted, WhatIsRefusedLeavesTheSelectionAndRaisesNothing) {
  percent.Value(number(2));
  showAt(percent, [&] {
    desktop.copyToClipboard(u"abc");
    pressCtrl(u'v');
    EXPECT_EQ(percent.Text(), u"2,00");
    EXPECT_EQ(percent.SelLength(), 4);
    EXPECT_EQ(happened(), "");
  });
}

// ---- focus

TEST_F(NumberFocus, ComingSelectsAllAndRaisesNothing) {
  percent.Value(number(-2.5));
  happened();
  show(form, [&] {
    click(percent);
    EXPECT_EQ(percent.Text(), u"-2,50");
    EXPECT_EQ(percent.SelStart(), 0);
    EXPECT_EQ(percent.SelLength(), 5);
    press(key::Tab);
    EXPECT_EQ(percent.Text(), u"(2,50)");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(NumberFocus, EmptiedItIsNullAndShowsZeroWhenLeft) {
  days.Value(number(14));
  showAt(days, [&] {
    press(key::Delete);
    EXPECT_EQ(happened(), "tdbnSkTage_Change =Null");
    EXPECT_EQ(days.Text(), u"");
    press(key::Tab);
    EXPECT_EQ(days.Text(), u"0");
    EXPECT_TRUE(days.Value().isNull());
    press(key::Tab, shift::Shift);
    EXPECT_EQ(days.Text(), u"");
  });
}

TEST_F(NumberFocus, LeavingFormatsWhatWasTyped) {
  showAt(percent, [&] {
    type(u"3.");
    press(key::Tab);
    EXPECT_EQ(percent.Text(), u"3,00");
    EXPECT_EQ(percent.Value(), number(3));
  });
}

TEST_F(NumberFocus, ValueByCodeIsShownForTypingWhileItHasTheFocus) {
  showAt(percent, [&] {
    percent.Value(number(-1));
    EXPECT_EQ(percent.Text(), u"-1,00");
    percent.Value(Null);
    EXPECT_EQ(percent.Text(), u"");
  });
}

TEST_F(NumberFocus, WhatAViewReportsIsHeldAgainstTheFormat) {
  days.Value(number(14));
  happened();
  days.userEdited(u"vierzehn", 0, 0);
  EXPECT_EQ(days.Text(), u"14");
  EXPECT_EQ(happened(), "");
}

}  // namespace
}  // namespace zqn::testing
