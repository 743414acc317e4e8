// SPDX-License-Identifier: MIT
//
// What code assigns to a text box, and what a person types into it.
#include "forms/text_box.h"

#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"five", ControlKind::TextBox, u"", 0, 300, 1000, 285, {.MaxLength = 5}},
    {u"lines", ControlKind::TextBox, u"", 0, 600, 1000, 285, {.MultiLine = true}},
};

class TextBoxTest : public FormTest {
 protected:
  TextBoxTest() {
    watchChange(a);
    watchChange(five);
    watchChange(lines);
  }
  /// What stands left of, inside and right of the selection: "ab[cd]e".
  static String shown(const TextBox& box) {
    String text = box.Text();
    text.insert(static_cast<std::size_t>(box.SelStart() + box.SelLength()), u"]");
    return text.insert(static_cast<std::size_t>(box.SelStart()), u"[");
  }
  void pressTimes(int times, int code, int shift = 0) {
    for (int i = 0; i < times; ++i) press(code, shift);
  }

  SampleForm form{roster};
  TextBox& a = form.Get<TextBox>(u"a");
  TextBox& five = form.Get<TextBox>(u"five");
  TextBox& lines = form.Get<TextBox>(u"lines");
};

using TextByCode = TextBoxTest;
using Selection = TextBoxTest;
using Typing = TextBoxTest;
using Clipboard = TextBoxTest;
using SeveralLines = TextBoxTest;
using BeyondTheBasicPlane = TextBoxTest;

// ---- by code

TEST_F(TextByCode, RaisesChangeAtOnceAndOnlyWhenItDiffers) {
  a.Text(u"10");
  EXPECT_EQ(happened(), "a_Change");
  a.Text(u"10");
  EXPECT_EQ(happened(), "");
  a.Text(u"");
  EXPECT_EQ(happened(), "a_Change");
}

TEST_F(TextByCode, BeyondMaxLengthIsCutWithoutAnError) {
  five.Text(u"1234567");
  EXPECT_EQ(five.Text(), u"12345");
  EXPECT_EQ(happened(), "five_Change");
  five.Text(u"12345 and more");
  EXPECT_EQ(happened(), "") << "the text is the same once it is cut";
}

TEST_F(TextByCode, StaysWhenMaxLengthBecomesSmaller) {
  a.Text(u"1234567");
  a.MaxLength(3);
  EXPECT_EQ(a.Text(), u"1234567");
  EXPECT_EQ(a.MaxLength(), 3);
  EXPECT_EQ(errorNumberOf([&] { a.MaxLength(-1); }), error::InvalidPropertyValue);
}

TEST_F(TextByCode, TakesAnyValueButNull) {
  a.Text(Variant(std::int32_t{10}));
  EXPECT_EQ(a.Text(), u"10");
  a.Text(Variant(1.5));
  EXPECT_EQ(a.Text(), u"1,5");
  a.Text(Variant());
  EXPECT_EQ(a.Text(), u"");
  a.Text(u"bleibt");
  EXPECT_EQ(errorNumberOf([&] { a.Text(Variant(Null)); }), error::InvalidUseOfNull);
  EXPECT_EQ(a.Text(), u"bleibt");
}

TEST_F(TextByCode, InChangeItselfRaisesChangeAgain) {
  a.Change = [&] {
    note("Change:" + toUtf8(a.Text()));
    if (a.Text() == u"1") a.Text(u"2");
  };
  a.Text(u"1");
  EXPECT_EQ(happened(), "Change:1 Change:2");
  EXPECT_EQ(a.Text(), u"2");
}

// ---- selection

TEST_F(Selection, AnotherTextPutsTheCaretInFrontWithNothingSelected) {
  a.Text(u"abc");
  a.SelStart(1);
  a.SelLength(2);
  a.Text(u"defg");
  EXPECT_EQ(shown(a), u"[]defg");
}

TEST_F(Selection, EndsAtTheEndOfTheText) {
  a.Text(u"abc");
  a.SelStart(1);
  a.SelLength(100);
  EXPECT_EQ(shown(a), u"a[bc]");
  a.SelStart(100);
  EXPECT_EQ(shown(a), u"abc[]");
  a.SelLength(1);
  EXPECT_EQ(shown(a), u"abc[]");
}

TEST_F(Selection, SelStartEmptiesIt) {
  a.Text(u"abc");
  a.SelLength(3);
  a.SelStart(2);
  EXPECT_EQ(shown(a), u"ab[]c");
}

TEST_F(Selection, IsNeverNegative) {
  a.Text(u"abc");
  EXPECT_EQ(errorNumberOf([&] { a.SelStart(-1); }), error::InvalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { a.SelLength(-1); }), error::InvalidPropertyValue);
  EXPECT_EQ(shown(a), u"[]abc");
}

TEST_F(Selection, MadeInGotFocusStaysAfterTheClickThatGaveTheFocus) {
  five.Text(u"abc");
  five.GotFocus = [&] {
    five.SelStart(0);
    five.SelLength(static_cast<int>(five.Text().size()));
  };
  show(form, [&] {
    click(five);
    EXPECT_EQ(shown(five), u"[abc]");
    type(u"x");
    EXPECT_EQ(five.Text(), u"x");
  });
}

// ---- typing

TEST_F(Typing, RaisesChangeForEachCharacter) {
  show(form, [&] {
    type(u"Äz");
    EXPECT_EQ(happened(), "a_Change a_Change");
    EXPECT_EQ(shown(a), u"Äz[]");
  });
}

TEST_F(Typing, ReplacesTheSelectionInOneChange) {
  a.Text(u"abcd");
  show(form, [&] {
    a.SelStart(1);
    a.SelLength(2);
    happened();
    type(u"x");
    EXPECT_EQ(shown(a), u"ax[]d");
    EXPECT_EQ(happened(), "a_Change");
  });
}

TEST_F(Typing, TheSameTextOverTheSelectionRaisesNoChange) {
  a.Text(u"abc");
  show(form, [&] {
    a.SelStart(1);
    a.SelLength(1);
    happened();
    type(u"b");
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(shown(a), u"ab[]c");
  });
}

TEST_F(Typing, StopsAtMaxLength) {
  show(form, [&] {
    five.SetFocus();
    type(u"1234567");
    EXPECT_EQ(five.Text(), u"12345");
    EXPECT_EQ(happened(), "five_Change five_Change five_Change five_Change five_Change");
    five.SelStart(1);
    five.SelLength(2);
    type(u"ab");
    EXPECT_EQ(five.Text(), u"1ab45");
  });
}

TEST_F(Typing, IntoATextThatIsTooLongAlreadyAddsNothing) {
  a.Text(u"1234567");
  a.MaxLength(3);
  show(form, [&] {
    happened();
    type(u"x");
    EXPECT_EQ(a.Text(), u"1234567");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(Typing, BackspaceAndDeleteTakeOneCharacterOrTheSelection) {
  a.Text(u"abcdef");
  show(form, [&] {
    happened();
    press(key::Backspace);
    EXPECT_EQ(happened(), "") << "nothing stands in front of the caret";
    a.SelStart(3);
    press(key::Backspace);
    EXPECT_EQ(shown(a), u"ab[]def");
    press(key::Delete);
    EXPECT_EQ(shown(a), u"ab[]ef");
    a.SelLength(1);
    press(key::Delete);
    EXPECT_EQ(shown(a), u"ab[]f");
    a.SelStart(0);
    a.SelLength(2);
    press(key::Backspace);
    EXPECT_EQ(shown(a), u"[]f");
    EXPECT_EQ(happened(), "a_Change a_Change a_Change a_Change");
    press(key::End);
    press(key::Delete);
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(Typing, ArrowsHomeAndEndMoveTheCaret) {
  a.Text(u"abcd");
  show(form, [&] {
    press(key::Right);
    EXPECT_EQ(shown(a), u"a[]bcd");
    press(key::End);
    EXPECT_EQ(shown(a), u"abcd[]");
    press(key::Right);
    EXPECT_EQ(shown(a), u"abcd[]");
    press(key::Left);
    EXPECT_EQ(shown(a), u"abc[]d");
    press(key::Home);
    press(key::Left);
    EXPECT_EQ(shown(a), u"[]abcd");
  });
}

TEST_F(Typing, ArrowsCollapseASelectionToItsSide) {
  a.Text(u"abcd");
  show(form, [&] {
    a.SelStart(1);
    a.SelLength(2);
    press(key::Left);
    EXPECT_EQ(shown(a), u"a[]bcd");
    a.SelLength(2);
    press(key::Right);
    EXPECT_EQ(shown(a), u"abc[]d");
  });
}

TEST_F(Typing, ArrowsWithShiftExtendTheSelectionOverItsAnchor) {
  a.Text(u"abcd");
  show(form, [&] {
    a.SelStart(2);
    press(key::Right, shift::Shift);
    EXPECT_EQ(shown(a), u"ab[c]d");
    pressTimes(3, key::Left, shift::Shift);
    EXPECT_EQ(shown(a), u"[ab]cd");
    press(key::End, shift::Shift);
    EXPECT_EQ(shown(a), u"ab[cd]");
    press(key::Home, shift::Shift);
    EXPECT_EQ(shown(a), u"[ab]cd");
  });
}

TEST_F(Typing, EnterTabAndEscapeTypeNothing) {
  form.control(u"five").Enabled(false);
  show(form, [&] {
    press(key::Enter);
    press(key::Tab);
    press(key::Escape);
    pressCtrl(u'L');
    EXPECT_EQ(a.Text(), u"");
    EXPECT_EQ(happened(), "");
  });
}

// ---- clipboard

TEST_F(Clipboard, CtrlASelectsAllAndCtrlCCopiesTheSelection) {
  a.Text(u"Müller");
  show(form, [&] {
    pressCtrl(u'a');
    EXPECT_EQ(shown(a), u"[Müller]");
    pressCtrl(u'c');
    EXPECT_EQ(desktop.clipboardText(), u"Müller");
    EXPECT_EQ(a.Text(), u"Müller");
  });
}

TEST_F(Clipboard, CtrlXTakesTheSelectionAndCtrlVPutsItBack) {
  a.Text(u"Müller");
  show(form, [&] {
    a.SelLength(2);
    happened();
    pressCtrl(u'x');
    EXPECT_EQ(shown(a), u"[]ller");
    EXPECT_EQ(happened(), "a_Change");
    pressCtrl(u'v');
    pressCtrl(u'v');
    EXPECT_EQ(shown(a), u"MüMü[]ller");
    EXPECT_EQ(happened(), "a_Change a_Change");
  });
}

TEST_F(Clipboard, WithoutASelectionCopyingAndCuttingLeaveTheClipboard) {
  a.Text(u"abc");
  desktop.copyToClipboard(u"vorher");
  show(form, [&] {
    pressCtrl(u'c');
    pressCtrl(u'x');
    EXPECT_EQ(desktop.clipboardText(), u"vorher");
    EXPECT_EQ(a.Text(), u"abc");
  });
}

TEST_F(Clipboard, AnEmptyClipboardLeavesTheSelection) {
  a.Text(u"abc");
  show(form, [&] {
    a.SelLength(2);
    happened();
    pressCtrl(u'v');
    EXPECT_EQ(shown(a), u"[ab]c");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(Clipboard, LinesArePastedAsWordsOfOneLine) {
  desktop.copyToClipboard(u"eins\r\nzwei\ndrei\rvier");
  show(form, [&] {
    pressCtrl(u'v');
    EXPECT_EQ(a.Text(), u"eins zwei drei vier");
    EXPECT_EQ(happened(), "a_Change");
  });
}

TEST_F(Clipboard, PastesWhatMaxLengthLeavesRoomFor) {
  desktop.copyToClipboard(u"123456789");
  five.Text(u"abc");
  show(form, [&] {
    five.SetFocus();
    five.SelLength(2);
    pressCtrl(u'v');
    EXPECT_EQ(shown(five), u"1234[]c");
  });
}

// ---- several lines

TEST_F(SeveralLines, EnterBeginsANewOneWhereItReachesTheControl) {
  show(form, [&] {
    lines.SetFocus();
    type(u"eins");
    press(key::Enter);
    type(u"zwei");
    EXPECT_EQ(lines.Text(), u"eins\r\nzwei");
    form.KeyPress = [](int& character) {
      if (character == key::Enter) character = 0;
    };
    press(key::Enter);
    EXPECT_EQ(lines.Text(), u"eins\r\nzwei");
    press(key::Enter, shift::Ctrl);
    EXPECT_EQ(lines.Text(), u"eins\r\nzwei\r\n");
  });
  EXPECT_EQ(a.Property(u"MultiLine"), Variant(false));
  EXPECT_EQ(lines.Property(u"MultiLine"), Variant(true));
}

TEST_F(SeveralLines, ALineBreakIsPassedAndStruckAsOne) {
  lines.Text(u"a\r\nb");
  show(form, [&] {
    lines.SetFocus();
    pressTimes(2, key::Right);
    EXPECT_EQ(shown(lines), u"a\r\n[]b");
    press(key::Left);
    EXPECT_EQ(shown(lines), u"a[]\r\nb");
    press(key::Delete);
    EXPECT_EQ(shown(lines), u"a[]b");
    press(key::Enter);
    press(key::Backspace);
    EXPECT_EQ(shown(lines), u"a[]b");
  });
}

TEST_F(SeveralLines, ArrowsHomeAndEndKnowThem) {
  lines.Text(u"eins\r\nzwo\nfünf");
  show(form, [&] {
    lines.SetFocus();
    press(key::Up);
    EXPECT_EQ(shown(lines), u"[]eins\r\nzwo\nfünf");
    press(key::End);
    EXPECT_EQ(shown(lines), u"eins[]\r\nzwo\nfünf");
    press(key::Down);
    EXPECT_EQ(shown(lines), u"eins\r\nzwo[]\nfünf");
    press(key::Down);
    EXPECT_EQ(shown(lines), u"eins\r\nzwo\nfün[]f");
    press(key::Home);
    EXPECT_EQ(shown(lines), u"eins\r\nzwo\n[]fünf");
    press(key::Down);
    press(key::Up, shift::Shift);
    EXPECT_EQ(shown(lines), u"eins\r\n[zwo\n]fünf");
  });
}

TEST_F(SeveralLines, ArePastedAsLinesWithCrLf) {
  desktop.copyToClipboard(u"eins\nzwei\rdrei\r\nvier");
  show(form, [&] {
    lines.SetFocus();
    happened();
    pressCtrl(u'v');
    EXPECT_EQ(lines.Text(), u"eins\r\nzwei\r\ndrei\r\nvier");
    EXPECT_EQ(happened(), "lines_Change");
  });
}

TEST_F(SeveralLines, ALineBreakNeedsRoomForBothUnits) {
  lines.MaxLength(5);
  lines.Text(u"1234\r\n");
  EXPECT_EQ(lines.Text(), u"1234");
  show(form, [&] {
    lines.SetFocus();
    press(key::End);
    press(key::Enter);
    EXPECT_EQ(lines.Text(), u"1234");
  });
  happened();
}

TEST_F(SeveralLines, StayAsCodeHasPartedThem) {
  lines.Text(u"eins\nzwei");
  EXPECT_EQ(lines.Text(), u"eins\nzwei");
}

// ---- characters of two units

TEST_F(BeyondTheBasicPlane, CountAsTwoUnitsAndAreNeverCutInHalf) {
  five.Text(u"1234\U0001F600");
  EXPECT_EQ(five.Text(), u"1234");
  five.Text(u"123\U0001F600");
  EXPECT_EQ(five.Text(), u"123\U0001F600");
  EXPECT_EQ(five.Text().size(), 5u);
}

TEST_F(BeyondTheBasicPlane, AreTypedAsOneChangeAndOnlyWhereBothUnitsFit) {
  show(form, [&] {
    five.SetFocus();
    type(u"123\U0001F600");
    EXPECT_EQ(five.Text(), u"123\U0001F600");
    EXPECT_EQ(happened(), "five_Change five_Change five_Change five_Change");
    press(key::Backspace);
    EXPECT_EQ(five.Text(), u"123");
    type(u"4\U0001F600");
    EXPECT_EQ(five.Text(), u"1234");
  });
}

TEST_F(BeyondTheBasicPlane, AreStruckAndPassedAsOne) {
  a.Text(u"a\U0001F600b");
  show(form, [&] {
    pressTimes(2, key::Right);
    EXPECT_EQ(a.SelStart(), 3);
    press(key::Left, shift::Shift);
    EXPECT_EQ(shown(a), u"a[\U0001F600]b");
    press(key::Left);
    press(key::Delete);
    EXPECT_EQ(a.Text(), u"ab");
  });
}

TEST_F(BeyondTheBasicPlane, AHalfAloneIsNotTyped) {
  show(form, [&] {
    type(String{char16_t{0xDE00}});
    type(String{char16_t{0xD83D}, u'x'});
    type(String{char16_t{0xDE00}});
    EXPECT_EQ(a.Text(), u"x");
  });
}

TEST_F(BeyondTheBasicPlane, ArePastedWholeOrNotAtAll) {
  desktop.copyToClipboard(u"1234\U0001F600");
  show(form, [&] {
    five.SetFocus();
    pressCtrl(u'v');
    EXPECT_EQ(five.Text(), u"1234");
  });
}

}  // namespace
}  // namespace zqn::testing
