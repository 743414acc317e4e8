// SPDX-License-Identifier: MIT
//
// The choice of a drop-down, by code and by a person, with its list closed and open.
#include "forms/combo_box.h"

#include "forms/command_button.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"cbo(0)", ControlKind::ComboBox, u"", 0, 0, 2955, 315},
    {u"cbo(1)", ControlKind::ComboBox, u"", 0, 400, 2955, 315},
    {u"btnCancel", ControlKind::CommandButton, u"Schließen", 0, 800, 1215, 315, {.Cancel = true}},
    {u"btnOK", ControlKind::CommandButton, u"Speichern", 0, 1200, 1215, 315, {.Default = true}},
};

class ComboBoxTest : public FormTest {
 protected:
  ComboBoxTest() {
    for (const StringView entry : {u"Kundenstamm", u"Lieferanten", u"keine", u"Ärzte"}) cbo.AddItem(entry);
    watchClicks(form);
  }
  std::string state() const {
    return std::to_string(cbo.ListIndex()) +
           (cbo.isOpen() ? " open at " + std::to_string(cbo.markedEntry()) : "");
  }

  SampleForm form{roster};
  ComboBox& cbo = form.Get<ComboBox>(u"cbo", 0);
  ComboBox& other = form.Get<ComboBox>(u"cbo", 1);
};

using ChoiceByCode = ComboBoxTest;
using ClosedList = ComboBoxTest;
using OpenList = ComboBoxTest;

// ---- by code

TEST_F(ChoiceByCode, StartsWithNone) {
  EXPECT_EQ(cbo.ListCount(), 4);
  EXPECT_EQ(cbo.ListIndex(), -1);
  EXPECT_EQ(cbo.Text(), u"");
  EXPECT_EQ(other.ListCount(), 0);
  EXPECT_EQ(happened(), "") << "adding entries raises nothing";
}

TEST_F(ChoiceByCode, RaisesClickWhenItDiffersAlsoForNone) {
  cbo.ListIndex(2);
  EXPECT_EQ(cbo.Text(), u"keine");
  EXPECT_EQ(happened(), "cbo_Click");
  cbo.ListIndex(2);
  EXPECT_EQ(happened(), "");
  cbo.ListIndex(-1);
  EXPECT_EQ(happened(), "cbo_Click");
}

TEST_F(ChoiceByCode, OutsideTheEntriesIsError380AndTheChoiceStays) {
  cbo.ListIndex(1);
  happened();
  EXPECT_EQ(errorNumberOf([&] { cbo.ListIndex(4); }), error::InvalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { cbo.ListIndex(-2); }), error::InvalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { other.ListIndex(0); }), error::InvalidPropertyValue);
  EXPECT_EQ(cbo.ListIndex(), 1);
  EXPECT_EQ(happened(), "");
}

TEST_F(ChoiceByCode, ByTextIgnoresCaseAndAnUnknownTextIsError383) {
  cbo.Text(u"LIEFERANTEN");
  EXPECT_EQ(cbo.ListIndex(), 1);
  EXPECT_EQ(cbo.Text(), u"Lieferanten");
  EXPECT_EQ(happened(), "cbo_Click");
  cbo.Text(u"lieferanten");
  EXPECT_EQ(happened(), "");
  EXPECT_EQ(errorNumberOf([&] { cbo.Text(u"Lieferant"); }), error::PropertyIsReadOnly);
  EXPECT_EQ(errorNumberOf([&] { cbo.Text(u""); }), error::PropertyIsReadOnly);
  EXPECT_EQ(cbo.ListIndex(), 1);
}

TEST_F(ChoiceByCode, ClearLeavesNoneAndRaisesNothing) {
  cbo.ListIndex(1);
  happened();
  cbo.Clear();
  EXPECT_EQ(cbo.ListCount(), 0);
  EXPECT_EQ(cbo.ListIndex(), -1);
  EXPECT_EQ(happened(), "");
}

TEST_F(ChoiceByCode, AnEntryOutsideTheListIsEmpty) {
  EXPECT_EQ(cbo.List(3), u"Ärzte");
  EXPECT_EQ(cbo.List(4), u"");
  EXPECT_EQ(cbo.List(-1), u"");
}

TEST_F(ChoiceByCode, IsReachedByNameToo) {
  cbo.Control::Property(u"listindex", Variant(u"3"));
  EXPECT_EQ(cbo.Property(u"Text"), Variant(u"Ärzte"));
  EXPECT_EQ(cbo.Property(u"ListCount"), Variant(std::int32_t{4}));
  EXPECT_EQ(cbo.Property(u"List(1)"), Variant(u"Lieferanten"));
  EXPECT_EQ(cbo.Property(u"List(9)"), Variant(u""));
  EXPECT_EQ(errorNumberOf([&] { cbo.Property(u"List"); }), error::NoSuchMember);
  EXPECT_EQ(errorNumberOf([&] { cbo.Control::Property(u"Text", Variant(Null)); }), error::InvalidUseOfNull);
  EXPECT_EQ(errorNumberOf([&] { cbo.Control::Property(u"ListIndex", Variant(u"x")); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([&] { cbo.Control::Property(u"ListCount", Variant(1.0)); }),
            error::PropertyIsReadOnly);
}

TEST_F(ChoiceByCode, TheTextIsTheNewOneInsideClick) {
  cbo.Click = [&] { note(toUtf8(cbo.Text())); };
  cbo.ListIndex(0);
  cbo.Text(u"keine");
  EXPECT_EQ(happened(), "Kundenstamm keine");
}

// ---- a person, the list closed

TEST_F(ClosedList, ArrowsHomeAndEndChooseAtOnce) {
  show(form, [&] {
    press(key::Up);
    EXPECT_EQ(state(), "0") << "from none to the first";
    press(key::Up);
    press(key::Down);
    press(key::Right);
    EXPECT_EQ(state(), "2");
    press(key::Left);
    press(key::End);
    press(key::Down);
    EXPECT_EQ(state(), "3");
    press(key::Home);
    EXPECT_EQ(state(), "0");
    EXPECT_EQ(happened(), "cbo_Click cbo_Click cbo_Click cbo_Click cbo_Click cbo_Click");
  });
}

TEST_F(ClosedList, ALetterChoosesTheNextEntryThatBeginsWithIt) {
  show(form, [&] {
    type(u"k");
    EXPECT_EQ(cbo.Text(), u"Kundenstamm");
    type(u"K");
    EXPECT_EQ(cbo.Text(), u"keine");
    type(u"k");
    EXPECT_EQ(cbo.Text(), u"Kundenstamm");
    type(u"ä");
    EXPECT_EQ(cbo.Text(), u"Ärzte");
    happened();
    type(u"x ");
    EXPECT_EQ(cbo.Text(), u"Ärzte");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ClosedList, ShortcutsAndEmptyListsLeaveItAlone) {
  show(form, [&] {
    pressCtrl(u'k');
    press(key::Down, shift::Ctrl);
    EXPECT_EQ(state(), "-1");
    press(key::Tab);
    press(key::Down);
    press(key::End);
    type(u"k");
    EXPECT_EQ(other.ListIndex(), -1);
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ClosedList, EnterAndEscapeAreTheForms) {
  show(form, [&] {
    press(key::Enter);
    press(key::Escape);
    EXPECT_EQ(happened(), "btnOK_Click btnCancel_Click");
    EXPECT_EQ(state(), "-1");
  });
}

// ---- a person, the list open

TEST_F(OpenList, OpensByClickF4AndAltWithAnArrow) {
  cbo.ListIndex(1);
  happened();
  show(form, [&] {
    click(cbo);
    EXPECT_EQ(state(), "1 open at 1");
    click(cbo);
    EXPECT_EQ(state(), "1");
    press(key::F4);
    EXPECT_EQ(state(), "1 open at 1");
    press(key::F4);
    EXPECT_EQ(state(), "1");
    press(key::Down, shift::Alt);
    EXPECT_EQ(state(), "1 open at 1");
    press(key::Up, shift::Alt);
    EXPECT_EQ(state(), "1");
    EXPECT_EQ(happened(), "") << "nothing else was chosen";
  });
}

TEST_F(OpenList, MovesTheMarkAndEnterTakesIt) {
  show(form, [&] {
    press(key::F4);
    press(key::Down);
    press(key::Down);
    EXPECT_EQ(state(), "-1 open at 1");
    type(u"k");
    EXPECT_EQ(state(), "-1 open at 2");
    EXPECT_EQ(happened(), "");
    press(key::Enter);
    EXPECT_EQ(state(), "2");
    EXPECT_EQ(happened(), "cbo_Click") << "the form's default button was not pressed";
  });
}

TEST_F(OpenList, EscapeClosesItAloneAndLeavesTheChoice) {
  cbo.ListIndex(0);
  happened();
  show(form, [&] {
    press(key::F4);
    press(key::End);
    press(key::Escape);
    EXPECT_EQ(state(), "0");
    EXPECT_EQ(happened(), "");
    press(key::Escape);
    EXPECT_EQ(happened(), "btnCancel_Click");
  });
}

TEST_F(OpenList, TabTakesTheMarkedEntryAndGoesOn) {
  show(form, [&] {
    press(key::F4);
    press(key::Down);
    press(key::Tab);
    EXPECT_EQ(state(), "0");
    EXPECT_EQ(happened(), "cbo_Click");
    EXPECT_EQ(focusOf(form), "cbo(1)");
  });
}

TEST_F(OpenList, KeepsItsKeysFromAllEvents) {
  watchKeys(form);
  show(form, [&] {
    press(key::F4);
    EXPECT_EQ(happened(), "Form_KeyDown:115 cbo_KeyDown:115 Form_KeyUp:115 cbo_KeyUp:115");
    press(key::Down);
    press(key::F10);
    press(key::Enter);
    EXPECT_EQ(happened(), "cbo_Click");
    press(key::Home, shift::Ctrl);
    EXPECT_EQ(happened(), "Form_KeyDown:36 cbo_KeyDown:36 Form_KeyUp:36 cbo_KeyUp:36");
  });
}

TEST_F(OpenList, AClickOnAnEntryTakesItAlsoTheOneThatStands) {
  show(form, [&] {
    click(cbo);
    cbo.userMarked(3);
    EXPECT_EQ(state(), "-1 open at 3");
    cbo.userChose(3);
    EXPECT_EQ(state(), "3");
    EXPECT_EQ(happened(), "cbo_Click");
    click(cbo);
    cbo.userChose(3);
    EXPECT_EQ(state(), "3");
    EXPECT_EQ(happened(), "cbo_Click");
    press(key::F4);
    press(key::Enter);
    EXPECT_EQ(happened(), "cbo_Click");
  });
}

TEST_F(OpenList, ClosesWhenTheFocusLeaves) {
  other.AddItem(u"eins");
  show(form, [&] {
    click(cbo);
    click(other);
    EXPECT_EQ(state(), "-1");
    EXPECT_TRUE(other.isOpen());
    other.Enabled(false);
    EXPECT_FALSE(other.isOpen());
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(OpenList, StaysShutWhileDisabled) {
  cbo.Enabled(false);
  show(form, [&] {
    click(cbo);
    cbo.userOpened();
    EXPECT_EQ(state(), "-1");
  });
}

TEST_F(OpenList, ClosesWhenTheListIsCleared) {
  show(form, [&] {
    click(cbo);
    cbo.userMarked(2);
    cbo.Clear();
    EXPECT_EQ(state(), "-1");
    click(cbo);
    EXPECT_EQ(state(), "-1") << "a list without entries does not open";
  });
}

// ---- any text

constexpr ControlDesign fieldRoster[] = {
    {u"ZahlungsartFibu", ControlKind::ComboBox, u"BAR", 0, 0, 705, 315, {.allowedit = true}},
    {u"btnCancel", ControlKind::CommandButton, u"Schließen", 0, 800, 1215, 315, {.Cancel = true}},
};

class ComboField : public FormTest {
 protected:
  ComboField() {
    for (const StringView entry : {u"E", u"Bank"}) cbo.AddItem(entry);
    cbo.Click = [this] { note("Click"); };
    cbo.Change = [this] { note("Change"); };
  }
  std::string state() const { return toUtf8(cbo.Text()) + " " + std::to_string(cbo.ListIndex()); }

  SampleForm form{fieldRoster};
  ComboBox& cbo = form.Get<ComboBox>(u"ZahlungsartFibu");
};

TEST_F(ComboField, HoldsAnyTextAndTheEntryThatItHappensToBe) {
  EXPECT_EQ(state(), "BAR -1");
  cbo.Text(u"bank");
  EXPECT_EQ(state(), "bank 1");
  EXPECT_EQ(happened(), "Change");
  cbo.Text(u"bank");
  EXPECT_EQ(happened(), "");
  cbo.Text(u"");
  EXPECT_EQ(state(), " -1");
  EXPECT_EQ(happened(), "Change");
}

TEST_F(ComboField, AChoiceByCodeShowsItsEntryAndRaisesClickAlone) {
  cbo.ListIndex(0);
  EXPECT_EQ(state(), "E 0");
  EXPECT_EQ(happened(), "Click");
  cbo.ListIndex(-1);
  EXPECT_EQ(state(), " -1");
  EXPECT_EQ(happened(), "Click");
}

TEST_F(ComboField, TypingEditsAndRaisesChange) {
  show(form, [&] {
    press(key::End);
    type(u"X");
    EXPECT_EQ(state(), "BARX -1");
    press(key::Home);
    press(key::End, shift::Shift);
    type(u"e");
    EXPECT_EQ(state(), "e 0") << "the entry counts without regard to case";
    EXPECT_EQ(happened(), "Change Change");
  });
}

TEST_F(ComboField, TheListReplacesWhatWasTyped) {
  cbo.Text(u"e");
  happened();
  show(form, [&] {
    press(key::F4);
    EXPECT_TRUE(cbo.isOpen());
    press(key::Enter);
    EXPECT_EQ(state(), "E 0");
    EXPECT_EQ(happened(), "Click") << "taken, though it was this entry already";
    press(key::Down);
    EXPECT_EQ(state(), "Bank 1");
    EXPECT_EQ(happened(), "Click");
  });
}

TEST_F(ComboField, EscapePutsBackWhatStoodWhenTheListWasOpened) {
  show(form, [&] {
    cbo.SelStart(1);
    cbo.SelLength(2);
    press(key::F4);
    type(u"ank");
    EXPECT_EQ(state(), "Bank 1");
    EXPECT_EQ(happened(), "Change Change Change");
    press(key::Escape);
    EXPECT_EQ(state(), "BAR -1");
    EXPECT_EQ(cbo.SelStart(), 1);
    EXPECT_EQ(cbo.SelLength(), 2);
    EXPECT_EQ(happened(), "Change");
    press(key::F4);
    press(key::Escape);
    EXPECT_EQ(state(), "BAR -1");
    EXPECT_EQ(happened(), "") << "nothing had changed";
  });
}

TEST_F(ComboField, AClickSetsTheCaretAndLeavesTheListShut) {
  show(form, [&] {
    click(cbo);
    EXPECT_FALSE(cbo.isOpen());
    cbo.userToggled();
    EXPECT_TRUE(cbo.isOpen());
  });
}

TEST_F(ComboField, ClearEmptiesItAndRaisesNothing) {
  cbo.Clear();
  EXPECT_EQ(state(), " -1");
  EXPECT_EQ(happened(), "");
}

}  // namespace
}  // namespace zqn::testing
