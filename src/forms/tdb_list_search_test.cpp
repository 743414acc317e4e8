// SPDX-License-Identifier: MIT
//
// A person at a list finds a row by typing.
#include "testing/lists.h"

namespace zqn::testing {
namespace {

using ListSearch = ListTest;

TEST_F(ListSearch, FindsTheFirstRowThatBeginsWithWhatIsTyped) {
  insert({u"10", u"110", u"115", u"20"});
  bind();
  show(form, [&] {
    type(u"1");
    EXPECT_EQ(happened(), "") << "the marked row begins so already";
    type(u"1");
    EXPECT_EQ(happened(), "RowColChange:110");
    type(u"5");
    EXPECT_EQ(happened(), "RowColChange:115");
  });
}

TEST_F(ListSearch, BeginsAnewWhenNoRowGoesOnSo) {
  insert({u"10", u"15", u"20", u"50"});
  bind();
  show(form, [&] {
    type(u"15");
    EXPECT_EQ(happened(), "RowColChange:15");
    type(u"2");
    EXPECT_EQ(happened(), "RowColChange:20");
    type(u"9");
    EXPECT_EQ(happened(), "") << "no row begins with 29 or 9";
    type(u"5");
    EXPECT_EQ(happened(), "RowColChange:50");
  });
}

TEST_F(ListSearch, BeginsAnewAfterTheMarkHasMoved) {
  insert({u"10", u"12", u"20", u"22"});
  auto rs = bind();
  show(form, [&] {
    type(u"1");
    press(key::Down);
    happened();
    type(u"2");
    EXPECT_EQ(happened(), "RowColChange:20") << "and not 12";
    list.userSelect(0);
    type(u"2");
    EXPECT_EQ(happened(), "RowColChange:10 RowColChange:20") << "and not 22";
    mark(*rs, 1);
    type(u"2");
    EXPECT_EQ(happened(), "RowColChange:12 RowColChange:20") << "and not 22";
  });
}

TEST_F(ListSearch, BeginsAnewAfterAClickOnTheMarkedRow) {
  insert({u"10", u"12", u"20"});
  bind();
  list.userSelect(0);
  show(form, [&] {
    happened();
    type(u"1");
    list.userSelect(0);
    type(u"2");
    EXPECT_EQ(happened(), "RowColChange:20") << "and not 12";
  });
}

TEST_F(ListSearch, TakesNoAccountOfCaseButOfAccents) {
  insert({u"Aal", u"Äpfel", u"Azur", u"zebra", u"Öl"});
  bind();
  show(form, [&] {
    type(u"Z");
    EXPECT_EQ(list.Text(), u"zebra");
    press(key::Home);
    type(u"ä");
    EXPECT_EQ(list.Text(), u"Äpfel");
    press(key::Home);
    type(u"az");
    EXPECT_EQ(list.Text(), u"Azur");
    type(u"ö");
    EXPECT_EQ(list.Text(), u"Öl");
  });
  happened();
}

TEST_F(ListSearch, FindsRowsThatAreNotKnownYet) {
  insertMany(30000);
  auto rs = bind();
  show(form, [&] {
    type(u"29876");
    EXPECT_EQ(list.Text(), u"29876");
    EXPECT_EQ(rs->Fields(u"Status").Value(), Variant(u"29876"));
  });
  happened();
}

TEST_F(ListSearch, FindsRowsOfAListThatIsNotInTheOrderOfItsKeys) {
  insert({u"30", u"10", u"20"});
  bind(u"SELECT * FROM Stati ORDER BY CASE Status WHEN '20' THEN 1 WHEN '30' THEN 2 ELSE 3 END");
  show(form, [&] {
    type(u"1");
    EXPECT_EQ(list.Text(), u"10");
    type(u"3");
    EXPECT_EQ(list.Text(), u"30");
    bind(u"SELECT * FROM Stati ORDER BY Status DESC");
    press(key::End);
    type(u"3");
    EXPECT_EQ(list.Text(), u"30");
  });
  happened();
}

TEST_F(ListSearch, AsksTheDatabaseAsItStandsNow) {
  insert({u"10", u"20", u"30", u"40", u"50"});
  bind();
  show(form, [&] {
    for (int row = 0; row < 5; ++row) list.cellText(row, 0);
    execute(u"DELETE FROM Stati WHERE Status IN ('20', '30')");
    execute(u"UPDATE Stati SET Status='4X' WHERE Status='40'");
    type(u"4");
    EXPECT_EQ(list.Text(), u"4X");
    type(u"X");
    EXPECT_EQ(list.Text(), u"4X");
    type(u"2");
    EXPECT_EQ(happened(), "RowColChange:4X") << "20 is gone, whatever is drawn";
    type(u"5");
    EXPECT_EQ(list.Text(), u"50");
    type(u"1");
    EXPECT_EQ(list.Text(), u"10");
  });
  happened();
}

TEST_F(ListSearch, PassesOverRowsThatAreGone) {
  insertMany(5000);
  bind();
  show(form, [&] {
    execute(u"DELETE FROM Stati WHERE Status BETWEEN '02450' AND '02510'");
    type(u"01234");
    EXPECT_EQ(list.Text(), u"01234");
    press(key::Home);
    type(u"04321");
    EXPECT_EQ(list.Text(), u"04321");
  });
  happened();
}

TEST_F(ListSearch, KeepsACharacterBeyond16BitsWhole) {
  insert({u"10", u"20", u"\U0001D538", u"\U0001D538\U0001D539"});
  bind();
  show(form, [&] {
    type(u"\U0001D538");
    EXPECT_EQ(list.Text(), u"\U0001D538");
    EXPECT_EQ(happened(), "RowColChange:\U0001D538");
    type(u"\U0001D539");
    EXPECT_EQ(list.Text(), u"\U0001D538\U0001D539");
    press(key::Home);
    desktop.press(KeyStroke::ofCharacter(u'\xD835'));
    press(key::Down);
    desktop.press(KeyStroke::ofCharacter(u'\xDD38'));
    EXPECT_EQ(list.Text(), u"20") << "a half alone finds nothing";
  });
  happened();
}

TEST_F(ListSearch, WithAltFindsNothing) {
  insert({u"10", u"20"});
  bind();
  show(form, [&] {
    desktop.press({'2', shift::Alt, u'2'});
    EXPECT_EQ(list.Row(), 0);
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ListSearch, WithCtrlOrInAnEmptyListFindsNothing) {
  bind();
  show(form, [&] {
    type(u"1");
    EXPECT_EQ(list.Row(), -1);
    insert({u"10", u"20"});
    bind();
    pressCtrl(u'2');
    EXPECT_EQ(list.Row(), 0);
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ListSearch, AHandlerThatDropsTheCharacterPreventsIt) {
  insert({u"10", u"20"});
  bind();
  list.KeyPress = [](int& ascii) { ascii = 0; };
  show(form, [&] {
    type(u"2");
    EXPECT_EQ(list.Row(), 0);
  });
}

}  // namespace
}  // namespace zqn::testing
