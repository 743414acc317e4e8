// SPDX-License-Identifier: MIT
//
// What keys and clicks do to a text, the same on every desktop.
#include "forms/date_input.h"
#include "forms/drawn_text.h"
#include "forms/tdb_number.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"other", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"a", ControlKind::TextBox, u"", 0, 300, 1000, 285},
    {u"five", ControlKind::TextBox, u"", 0, 600, 1000, 285, {.MaxLength = 5}},
    {u"lines", ControlKind::TextBox, u"", 0, 900, 1000, 885, {.MultiLine = true}},
    {u"locked", ControlKind::TextBox, u"fest", 0, 1800, 1000, 285, {.Locked = true}},
    {u"days", ControlKind::TDBNumber, u"", 0, 2100, 1000, 285, {.Format = u"###0;;0;0"}},
    {u"day", ControlKind::DateInput, u"", 0, 2400, 2000, 285},
};

class TextEditing : public FormTest {
 protected:
  /// What stands left of, inside and right of the selection: "ab[cd]e".
  static String shown(const TextEntry& box) {
    String text = box.Text();
    text.insert(static_cast<std::size_t>(box.SelStart() + box.SelLength()), u"]");
    return text.insert(static_cast<std::size_t>(box.SelStart()), u"[");
  }
  /// The text with its selection in brackets, the caret at the right one, and the focus in it.
  void start(TextEntry& box, StringView text) {
    const auto open = text.find(u'[');
    const auto close = text.find(u']');
    const String plain = String(text.substr(0, open)) + String(text.substr(open + 1, close - open - 1)) +
                         String(text.substr(close + 1));
    box.Property(u"Text", Variant(plain));
    box.SetFocus();
    box.SelStart(static_cast<int>(open));
    box.SelLength(static_cast<int>(close - open - 1));
  }
  String after(StringView text, int code, int shift = 0) {
    start(a, text);
    press(code, shift);
    return shown(a);
  }

  SampleForm form{roster};
  TextBox& other = form.Get<TextBox>(u"other");
  TextBox& a = form.Get<TextBox>(u"a");
  TextBox& five = form.Get<TextBox>(u"five");
  TextBox& lines = form.Get<TextBox>(u"lines");
  TextBox& locked = form.Get<TextBox>(u"locked");
  TDBNumber& days = form.Get<TDBNumber>(u"days");
  DateInput& day = form.Get<DateInput>(u"day");
};

using Caret = TextEditing;
using Deleting = TextEditing;
using ClipboardKeys = TextEditing;
using Undo = TextEditing;
using AltKeys = TextEditing;
using Clicks = TextEditing;
using CombiningMarks = TextEditing;
using StoredBreaks = TextEditing;
using Dragging = TextEditing;
using ByAssistiveTechnology = TextEditing;
using InvalidDays = TextEditing;

// ---- the caret

TEST_F(Caret, LeavesASelectionAtTheEndThatTheKeyNames) {
  show(form, [&] {
    EXPECT_EQ(after(u"[abcd]", key::Left), u"[]abcd");
    EXPECT_EQ(after(u"[abcd]", key::Right), u"abcd[]");
    EXPECT_EQ(after(u"a[bc]d", key::Left), u"a[]bcd");
    EXPECT_EQ(after(u"a[bc]d", key::Right), u"abc[]d");
  });
}

TEST_F(Caret, GoesByWordsWithCtrl) {
  constexpr StringView text = u"[]eins zwei  drei, vier";
  show(form, [&] {
    start(a, text);
    std::vector<int> stops;
    for (int i = 0; i < 6; ++i) {
      press(key::Right, shift::Ctrl);
      stops.push_back(a.SelStart());
    }
    EXPECT_THAT(stops, ::testing::ElementsAre(5, 11, 15, 17, 21, 21));
    stops.clear();
    for (int i = 0; i < 6; ++i) {
      press(key::Left, shift::Ctrl);
      stops.push_back(a.SelStart());
    }
    EXPECT_THAT(stops, ::testing::ElementsAre(17, 15, 11, 5, 0, 0));
    press(key::Right, shift::Ctrl | shift::Shift);
    EXPECT_EQ(shown(a), u"[eins ]zwei  drei, vier");
  });
}

TEST_F(Caret, GoesToTheEndsOfTheLineAndWithCtrlOfTheText) {
  show(form, [&] {
    start(lines, u"eins\r\nzw[]ei\r\ndrei");
    press(key::Home);
    EXPECT_EQ(shown(lines), u"eins\r\n[]zwei\r\ndrei");
    press(key::End);
    EXPECT_EQ(shown(lines), u"eins\r\nzwei[]\r\ndrei");
    press(key::Home, shift::Ctrl);
    EXPECT_EQ(shown(lines), u"[]eins\r\nzwei\r\ndrei");
    press(key::End, shift::Ctrl | shift::Shift);
    EXPECT_EQ(shown(lines), u"[eins\r\nzwei\r\ndrei]");
    EXPECT_EQ(after(u"ab[]cd", key::Home, shift::Ctrl), u"[]abcd");
    EXPECT_EQ(after(u"ab[]cd", key::End, shift::Ctrl), u"abcd[]");
  });
}

TEST_F(Caret, ExtendsASelectionFromItsAnchor) {
  show(form, [&] {
    EXPECT_EQ(after(u"[abcd]", key::Left, shift::Shift), u"[abc]d");
    EXPECT_EQ(after(u"[abcd]", key::Home, shift::Shift), u"[]abcd");
    EXPECT_EQ(after(u"a[]bcd", key::End, shift::Shift), u"a[bcd]");
  });
}

// ---- deleting

TEST_F(Deleting, GoesByWordsWithCtrl) {
  show(form, [&] {
    EXPECT_EQ(after(u"eins zwei[] drei", key::Backspace, shift::Ctrl), u"eins [] drei");
    EXPECT_EQ(after(u"eins []zwei drei", key::Backspace, shift::Ctrl), u"[]zwei drei");
    EXPECT_EQ(after(u"eins []zwei drei", key::Delete, shift::Ctrl), u"eins []drei");
    EXPECT_EQ(after(u"ei[]ns zwei", key::Delete, shift::Ctrl), u"ei[]zwei");
    EXPECT_EQ(after(u"e[in]s zwei", key::Delete, shift::Ctrl), u"e[]s zwei") << "the selection alone";
  });
}

TEST_F(Deleting, WhatIsNotThereIsNoEdit) {
  show(form, [&] {
    start(a, u"[]ab");
    watchChange(a);
    press(key::Backspace);
    press(key::Backspace, shift::Ctrl);
    EXPECT_FALSE(a.canUndo());
    EXPECT_EQ(happened(), "");
  });
}

// ---- clipboard

TEST_F(ClipboardKeys, ShiftDeleteCutsAndInsertCopiesAndPastes) {
  show(form, [&] {
    EXPECT_EQ(after(u"a[bc]d", key::Delete, shift::Shift), u"a[]d");
    EXPECT_EQ(desktop.clipboardText(), u"bc");
    press(key::Insert, shift::Shift);
    EXPECT_EQ(shown(a), u"abc[]d");
    start(a, u"[ab]cd");
    press(key::Insert, shift::Ctrl);
    EXPECT_EQ(desktop.clipboardText(), u"ab");
    EXPECT_EQ(after(u"ab[]cd", key::Insert), u"ab[]cd");
  });
}

TEST_F(ClipboardKeys, CuttingWithoutASelectionDoesNothing) {
  desktop.copyToClipboard(u"vorher");
  show(form, [&] {
    EXPECT_EQ(after(u"ab[]cd", key::Delete, shift::Shift), u"ab[]cd");
    pressCtrl(u'x');
    EXPECT_EQ(shown(a), u"ab[]cd");
    EXPECT_EQ(desktop.clipboardText(), u"vorher");
  });
}

// ---- undo

TEST_F(Undo, TakesBackARunOfTypingAtOnce) {
  show(form, [&] {
    start(a, u"ab[]");
    type(u"cde");
    pressCtrl(u'z');
    EXPECT_EQ(shown(a), u"ab[]");
    pressCtrl(u'y');
    EXPECT_EQ(shown(a), u"abcde[]");
    pressCtrl(u'y');
    EXPECT_EQ(shown(a), u"abcde[]");
  });
}

TEST_F(Undo, GoesEditByEdit) {
  desktop.copyToClipboard(u"XY");
  show(form, [&] {
    start(a, u"[]ab");
    watchChange(a);
    type(u"12");
    press(key::End);
    type(u"3");
    press(key::Backspace);
    pressCtrl(u'v');
    EXPECT_EQ(a.Text(), u"12abXY");
    happened();
    for (const StringView text : {u"12ab", u"12ab3", u"12ab", u"ab", u"ab"}) {
      pressCtrl(u'z');
      EXPECT_EQ(a.Text(), text);
    }
    EXPECT_EQ(happened(), "a_Change a_Change a_Change a_Change");
    for (int i = 0; i < 4; ++i) pressCtrl(u'y');
    EXPECT_EQ(a.Text(), u"12abXY");
  });
}

TEST_F(Undo, PutsBackWhatTypingReplacedAndSelectsIt) {
  show(form, [&] {
    start(a, u"a[bc]d");
    type(u"xyz");
    pressCtrl(u'z');
    EXPECT_EQ(shown(a), u"a[bc]d");
  });
}

TEST_F(Undo, BeginsWhereTheFieldWasEntered) {
  show(form, [&] {
    start(a, u"ab[]");
    type(u"c");
    other.SetFocus();
    a.SetFocus();
    pressCtrl(u'z');
    EXPECT_EQ(a.Text(), u"abc");
    type(u"x");
    a.Text(u"von Hand");
    pressCtrl(u'z');
    EXPECT_EQ(a.Text(), u"von Hand") << "code has put another text there";
  });
}

TEST_F(Undo, ANewEditEndsRedoing) {
  show(form, [&] {
    start(a, u"[]");
    type(u"a");
    pressCtrl(u'z');
    type(u"b");
    pressCtrl(u'y');
    EXPECT_EQ(a.Text(), u"b");
  });
}

TEST_F(Undo, OfANumberTakesItsValueBack) {
  days.Value(Variant(14.0));
  show(form, [&] {
    days.SetFocus();
    type(u"7");
    EXPECT_EQ(days.Value(), Variant(7.0));
    pressCtrl(u'z');
    EXPECT_EQ(days.Value(), Variant(14.0));
    EXPECT_EQ(shown(days), u"[14]");
  });
}

// ---- Alt

TEST_F(AltKeys, TypeNothingInAnyField) {
  day.Value(Variant(u"20260301000000"));
  days.Value(Variant(14.0));
  show(form, [&] {
    for (TextEntry* each : std::initializer_list<TextEntry*>{&a, &five, &lines, &days, &day}) {
      each->SetFocus();
      each->SelStart(0);
      each->SelLength(static_cast<int>(each->Text().size()));
      const String before = each->Text();
      // A toolkit may say what the key would type.
      desktop.press(KeyStroke{'S', shift::Alt, u's'});
      desktop.press(KeyStroke{'1', shift::Alt, u'1'});
      desktop.press(KeyStroke::ofCharacter(u's', shift::Alt));
      EXPECT_EQ(each->Text(), before);
    }
  });
}

TEST_F(AltKeys, WithCtrlTypeNothingUnlessTheKeyboardMadeACharacterOfThem) {
  EXPECT_EQ(KeyStroke::ofCharacter(u'q', shift::Ctrl | shift::Alt).character, 0);
  EXPECT_EQ(KeyStroke::ofCharacter(u'q', shift::Ctrl).character, 17);
}

// ---- clicks

TEST_F(Clicks, IntoAFieldPutTheCaretBehindTheLastCharacter) {
  a.Text(u"abc");
  show(form, [&] {
    click(a);
    EXPECT_EQ(shown(a), u"abc[]");
    press(key::Home);
    click(a);
    EXPECT_EQ(shown(a), u"abc[]");
  });
}

TEST_F(Clicks, LeaveWhatGotFocusSelectedAndTheSecondTakesItOff) {
  days.Value(Variant(14.0));
  show(form, [&] {
    click(days);
    EXPECT_EQ(shown(days), u"[14]");
    click(days);
    EXPECT_EQ(shown(days), u"14[]");
    type(u"7");
    EXPECT_EQ(days.Text(), u"147");
  });
}

TEST_F(Clicks, ThatComeTwiceSelectTheWord) {
  a.Text(u"eins zwei drei");
  show(form, [&] {
    a.SetFocus();
    a.userPressedTwice(6);
    EXPECT_EQ(shown(a), u"eins [zwei ]drei");
    a.userPressedTwice(14);
    EXPECT_EQ(shown(a), u"eins zwei [drei]");
  });
}

TEST_F(Dragging, SelectsFromWhereTheButtonWentDown) {
  a.Text(u"abcdef");
  show(form, [&] {
    a.SetFocus();
    a.userPressed(4, false);
    a.userDragged(2);
    EXPECT_EQ(shown(a), u"ab[cd]ef");
    a.userDragged(6);
    EXPECT_EQ(shown(a), u"abcd[ef]");
    a.userPressed(1, false, true);
    EXPECT_EQ(shown(a), u"a[bcd]ef") << "Shift extends from the anchor";
  });
}

TEST_F(Dragging, WithoutMovingLeavesWhatGotFocusSelected) {
  days.Value(Variant(14.0));
  show(form, [&] {
    days.SetFocus();
    days.userPressed(1, true);
    days.userDragged(1);
    EXPECT_EQ(shown(days), u"[14]");
    days.userDragged(2);
    EXPECT_EQ(shown(days), u"1[4]");
  });
}

// ---- characters of several units

TEST_F(CombiningMarks, GoWithTheirLetter) {
  show(form, [&] {
    EXPECT_EQ(after(u"a[]e\u0301\u0323b", key::Right), u"ae\u0301\u0323[]b");
    EXPECT_EQ(after(u"ae\u0301\u0323[]b", key::Left), u"a[]e\u0301\u0323b");
    EXPECT_EQ(after(u"ae\u0301\u0323[]b", key::Backspace), u"a[]b");
    EXPECT_EQ(after(u"a[]\U0001F44D\U0001F3FDb", key::Delete), u"a[]b");
  });
}

TEST_F(CombiningMarks, AreNeverCutOffByMaxLength) {
  five.Text(u"1234e\u0301");
  EXPECT_EQ(five.Text(), u"1234");
  desktop.copyToClipboard(u"23e\u0301\u0323");
  show(form, [&] {
    start(five, u"1[]");
    pressCtrl(u'v');
    EXPECT_EQ(five.Text(), u"123");
  });
}

// ---- stored line breaks

TEST_F(StoredBreaks, StayAsTheyAreWhenTheTextBesideThemIsEdited) {
  show(form, [&] {
    start(lines, u"a\nb\rc\r\nd[]");
    type(u"e");
    EXPECT_EQ(lines.Text(), u"a\nb\rc\r\nde");
    start(a, u"x\r\ny\u0001z\u2029[]");
    type(u"!");
    EXPECT_EQ(a.Text(), u"x\r\ny\u0001z\u2029!");
    press(key::Home);
    press(key::Right);
    press(key::Delete);
    EXPECT_EQ(a.Text(), u"xy\u0001z\u2029!") << "one step takes the whole break";
  });
}

TEST_F(StoredBreaks, AreDrawnAsOneSignEach) {
  const DrawnText drawn(u"a\r\nb\u0001\n\u2029\uFEFF\x7f", DrawnText::Lines::One);
  EXPECT_EQ(drawn.text(), u"a\u21B5b\u2401\u21B5\u21B5\uFFFD\u2421");
  EXPECT_EQ(drawn.inDrawn(3), 2);
  EXPECT_EQ(drawn.inDrawn(2), 1) << "inside the break";
  EXPECT_EQ(drawn.inStored(2), 3);
  EXPECT_EQ(drawn.inStored(100), 9);
  EXPECT_EQ(DrawnText(u"a\r\nb\rc", DrawnText::Lines::Several).text(), u"a\nb\nc");
}

TEST_F(StoredBreaks, AreNotNeededToTypeRareCharacters) {
  show(form, [&] {
    start(a, u"[]");
    type(u"\uFEFF\u2029\u0085");
    EXPECT_EQ(a.Text(), u"\uFEFF\u2029\u0085");
  });
}

// ---- assistive technology

TEST_F(ByAssistiveTechnology, ATextIsWrittenAsAPersonWould) {
  show(form, [&] {
    start(five, u"12[]");
    watchChange(five);
    five.userReplaced(1, 1, u"abcdef");
    EXPECT_EQ(shown(five), u"1abcd[]");
    EXPECT_EQ(happened(), "five_Change");
    pressCtrl(u'z');
    EXPECT_EQ(five.Text(), u"12");
    locked.userReplaced(0, 4, u"neu");
    EXPECT_EQ(locked.Text(), u"fest");
    a.Enabled(false);
    a.userReplaced(0, 0, u"neu");
    EXPECT_EQ(a.Text(), u"");
  });
}

// ---- dates

TEST_F(InvalidDays, AreToldAsLongAsTheyStandThere) {
  show(form, [&] {
    day.SetFocus();
    EXPECT_FALSE(day.isInvalid());
    type(u"31.2");
    EXPECT_TRUE(day.isInvalid());
    type(u"6.2026");
    EXPECT_TRUE(day.isInvalid());
    other.SetFocus();
    EXPECT_FALSE(day.isInvalid()) << "the text has gone";
    EXPECT_EQ(day.Text(), u"");
    day.SetFocus();
    type(u"1.2.26");
    EXPECT_FALSE(day.isInvalid());
  });
}

}  // namespace
}  // namespace zqn::testing
