// SPDX-License-Identifier: MIT
//
// The selection of several rows, by code, by clicks and by keys.
#include "forms/list_box.h"

#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {{u"lst", ControlKind::ListBox, u"", 0, 0, 2000, 2000}};
constexpr ControlDesign twoRoster[] = {
    {u"txt", ControlKind::TextBox, u"", 0, 2400, 2000, 285},
    {u"lst", ControlKind::ListBox, u"", 0, 0, 2000, 2000},
};

class Rows : public FormTest {
 protected:
  Rows() {
    for (const StringView text : {u"Angebot", u"Auftrag", u"Lieferschein", u"Rechnung", u"Gutschrift"})
      lst.AddItem(text);
    watchClicks(form);
  }
  /// Numbers of the selected rows, and the focus row behind "@".
  std::string state() const {
    std::string rows;
    for (int i = 0; i < lst.ListCount(); ++i) {
      if (lst.Selected(i)) rows += std::to_string(i);
    }
    return rows + "@" + std::to_string(lst.ListIndex());
  }
  void click(int row, int shift = 0) {
    if (lst.userPressed(row, shift)) form.mouseReleased(lst);
  }

  SampleForm form{roster};
  ListBox& lst = form.Get<ListBox>(u"lst");
};

TEST_F(Rows, StartWithoutSelectionAndFocusRow) {
  EXPECT_EQ(lst.ListCount(), 5);
  EXPECT_EQ(state(), "@-1");
  EXPECT_EQ(lst.Text(), u"");
  EXPECT_EQ(lst.List(3), u"Rechnung");
  EXPECT_EQ(lst.List(5), u"");
  EXPECT_EQ(happened(), "");
}

TEST_F(Rows, SelectedByCodeRaiseClickWhenTheStateChanges) {
  lst.Selected(3, true);
  EXPECT_EQ(state(), "3@-1");
  EXPECT_EQ(happened(), "lst_Click");
  lst.Selected(3, true);
  EXPECT_EQ(happened(), "");
  lst.Selected(3, false);
  EXPECT_EQ(happened(), "lst_Click");
  EXPECT_EQ(lst.SelCount(), 0);
}

TEST_F(Rows, TheFocusRowByCodeSelectsNothing) {
  lst.Selected(1, true);
  happened();
  lst.ListIndex(2);
  EXPECT_EQ(state(), "1@2");
  EXPECT_EQ(lst.Text(), u"Lieferschein");
  EXPECT_EQ(happened(), "lst_Click");
  lst.ListIndex(2);
  EXPECT_EQ(happened(), "");
}

TEST_F(Rows, OutsideTheListAreErrors380And381) {
  EXPECT_EQ(errorNumberOf([&] { lst.ListIndex(5); }), error::InvalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { lst.ListIndex(-2); }), error::InvalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { (void)lst.Selected(5); }), error::InvalidPropertyArrayIndex);
  EXPECT_EQ(errorNumberOf([&] { lst.Selected(-1, true); }), error::InvalidPropertyArrayIndex);
  EXPECT_EQ(state(), "@-1");
}

TEST_F(Rows, ClearLeavesNothingAndRaisesNothing) {
  lst.Selected(1, true);
  lst.ListIndex(1);
  happened();
  lst.Clear();
  EXPECT_EQ(state(), "@-1");
  EXPECT_EQ(lst.ListCount(), 0);
  EXPECT_EQ(happened(), "");
}

TEST_F(Rows, AClickSelectsOneAlone) {
  show(form, [&] {
    click(1);
    click(3);
    EXPECT_EQ(state(), "3@3");
    EXPECT_EQ(happened(), "lst_Click lst_Click");
    click(3);
    EXPECT_EQ(happened(), "") << "nothing has changed";
    click(7);
    EXPECT_EQ(state(), "3@3") << "below the last row";
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(Rows, CtrlAddsAndTakesAwayAndShiftSelectsARange) {
  show(form, [&] {
    click(1);
    click(3, shift::Ctrl);
    EXPECT_EQ(state(), "13@3");
    click(1, shift::Ctrl);
    EXPECT_EQ(state(), "3@1");
    click(4, shift::Shift);
    EXPECT_EQ(state(), "1234@4");
    click(0, shift::Shift);
    EXPECT_EQ(state(), "01@0") << "the range begins where it began";
    EXPECT_EQ(happened(), "lst_Click lst_Click lst_Click lst_Click lst_Click");
  });
}

TEST_F(Rows, ClickComesWhenTheButtonIsReleased) {
  show(form, [&] {
    ASSERT_TRUE(lst.userPressed(2, shift::None));
    EXPECT_EQ(state(), "2@2");
    EXPECT_EQ(happened(), "");
    form.mouseReleased(lst);
    EXPECT_EQ(happened(), "lst_Click");
  });
}

TEST_F(Rows, TheSecondPressOfADoubleClickIsOnTheRowOfTheFirst) {
  show(form, [&] {
    click(3);
    lst.userPressedAgain(shift::None);
    EXPECT_EQ(state(), "3@3");
    click(1, shift::Ctrl);
    lst.userPressedAgain(shift::Ctrl);
    EXPECT_EQ(state(), "3@1") << "in, and out again";
    happened();
  });
}

TEST_F(Rows, SelectedByAScreenReaderTakeTheFocusAsAClickDoes) {
  SampleForm two{twoRoster};
  auto& rows = two.Get<ListBox>(u"lst");
  auto& key = two.Get<Control>(u"txt");
  rows.AddItem(u"Angebot");
  bool keeps = true;
  key.Validate = [&](bool& cancel) { cancel = keeps; };
  show(two, [&] {
    rows.userSelected({true});
    EXPECT_FALSE(rows.Selected(0)) << "refused like a click";
    keeps = false;
    rows.userSelected({true});
    EXPECT_TRUE(rows.Selected(0));
    EXPECT_EQ(focusOf(two), "lst");
  });
}

TEST_F(Rows, KeysMoveSelectAndExtend) {
  show(form, [&] {
    press(key::Down);
    press(key::Down);
    EXPECT_EQ(state(), "1@1");
    press(key::Down, shift::Shift);
    EXPECT_EQ(state(), "12@2");
    press(key::End, shift::Ctrl);
    EXPECT_EQ(state(), "12@4");
    press(key::Space, shift::Ctrl);
    EXPECT_EQ(state(), "124@4");
    press(key::Space);
    EXPECT_EQ(state(), "4@4");
    press(key::Home);
    EXPECT_EQ(state(), "0@0");
    press(key::Up);
    EXPECT_EQ(state(), "0@0");
    press(key::PageDown);
    EXPECT_EQ(state(), "4@4");
    happened();
  });
}

TEST_F(Rows, ALetterGoesToTheNextRowThatBeginsWithIt) {
  show(form, [&] {
    type(u"a");
    EXPECT_EQ(state(), "0@0");
    type(u"A");
    EXPECT_EQ(state(), "1@1");
    type(u"x");
    EXPECT_EQ(state(), "1@1");
    EXPECT_EQ(happened(), "lst_Click lst_Click");
  });
}

TEST_F(Rows, AreReachedByName) {
  lst.Selected(2, true);
  happened();
  EXPECT_EQ(lst.Property(u"Selected(2)"), Variant(true));
  EXPECT_EQ(lst.Property(u"List(0)"), Variant(u"Angebot"));
  EXPECT_EQ(lst.Property(u"SelCount"), Variant(std::int32_t{1}));
  EXPECT_EQ(lst.Property(u"ListCount"), Variant(std::int32_t{5}));
  lst.Property(u"ListIndex", Variant(std::int32_t{4}));
  EXPECT_EQ(lst.Property(u"Text"), Variant(u"Gutschrift"));
  happened();
}

}  // namespace
}  // namespace zqn::testing
