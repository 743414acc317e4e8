// SPDX-License-Identifier: MIT
//
// A person at a list: mouse, arrows, paging, copying.
#include "forms/command_button.h"
#include "testing/lists.h"

namespace zqn::testing {
namespace {

using ListMouse = ListTest;
using ListArrows = ListTest;
using ListCopy = ListTest;

// ---- mouse

TEST_F(ListMouse, AClickOnAnotherRowMarksItAndMovesTheRecordset) {
  insert({u"10", u"20", u"30"});
  auto rs = bind();
  list.userSelect(2);
  EXPECT_EQ(happened(), "RowColChange:30");
  EXPECT_EQ(list.Row(), 2);
  EXPECT_EQ(rs->currentRow(), 2);
}

TEST_F(ListMouse, AClickOnTheMarkedRowTellsOnceAfterABindingOnly) {
  insert({u"10", u"20"});
  bind();
  list.userSelect(0);
  EXPECT_EQ(happened(), "RowColChange:10");
  list.userSelect(0);
  EXPECT_EQ(happened(), "");
  list.ReBind();
  list.userSelect(0);
  EXPECT_EQ(happened(), "RowColChange:10");
}

TEST_F(ListMouse, AClickOnTheMarkedRowBringsTheRecordsetBack) {
  insert({u"10", u"20"});
  auto rs = bind();
  list.userSelect(0);
  rs->MoveLast();
  list.userSelect(0);
  EXPECT_EQ(rs->currentRow(), 0);
  EXPECT_EQ(happened(), "RowColChange:10");
}

TEST_F(ListMouse, AClickBesideTheRowsDoesNothing) {
  insert({u"10"});
  bind();
  list.userSelect(-1);
  list.userSelect(1);
  EXPECT_EQ(list.Row(), 0);
  EXPECT_EQ(happened(), "");
}

TEST_F(ListMouse, WhereTheRecordsetFailsToMoveTheMarkStaysAndThePersonIsTold) {
  insert({u"10", u"20", u"30"});
  auto rs = Ref<ado::Recordset>::make();
  rs->Open(u"SELECT * FROM Stati ORDER BY Status", connection, ado::adOpenKeyset, ado::adLockOptimistic);
  list.DataSource(rs);
  // Leaving the row would write a key that is taken.
  rs->Fields(u"Status").Value(u"20");
  show(form, [&] {
    list.userSelect(2);
    press(key::Down);
    type(u"3");
    EXPECT_EQ(happened(), "!List_MouseDown:-2147217873 !List_KeyDown:-2147217873 !List_KeyDown:-2147217873");
    EXPECT_EQ(list.Row(), 0);
    EXPECT_EQ(rs->currentRow(), 0);
  });
  rs->CancelUpdate();
}

TEST_F(ListMouse, ADoubleClickComesFromTheMarkedRowAlone) {
  insert({u"10", u"20"});
  bind();
  list.DblClick = [&] { note("DblClick:" + toUtf8(list.Text())); };
  list.userSelect(1);
  list.userDoubleClick(1);
  EXPECT_EQ(happened(), "RowColChange:20 DblClick:20");
  list.userDoubleClick(0);
  EXPECT_EQ(happened(), "");
}

TEST_F(ListMouse, APressMeansTheRowThatWasUnderThePointerBeforeTheFocusMoved) {
  insertMany(30);
  auto rs = bind();
  list.DblClick = [&] { note("DblClick:" + toUtf8(list.Text())); };
  Control& button = form.control(u"btn");
  button.LostFocus = [&] { mark(*rs, 24); };
  show(form, [&] {
    button.SetFocus();
    happened();
    ASSERT_TRUE(list.userPressed(2));
    EXPECT_EQ(happened(), "RowColChange:00025 RowColChange:00003");
    // The rows have scrolled: another one is under the pointer by now.
    ASSERT_TRUE(list.userPressedAgain(20));
    EXPECT_EQ(happened(), "DblClick:00003");
    ASSERT_TRUE(list.userPressedAgain(20));
    EXPECT_EQ(happened(), "RowColChange:00021") << "a third press is a press";
  });
}

TEST_F(ListMouse, APressOnAListThatIsBoundAnewWhenTheFocusComesMarksNothing) {
  insert({u"10", u"20"});
  bind();
  Control& button = form.control(u"btn");
  button.LostFocus = [&] {
    insert({u"05"});
    bind();
  };
  list.DblClick = [&] { note("DblClick"); };
  show(form, [&] {
    button.SetFocus();
    happened();
    EXPECT_TRUE(list.userPressed(1));
    EXPECT_EQ(focusOf(form), "List");
    EXPECT_EQ(list.Text(), u"05");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ListMouse, APressThatIsRefusedMarksNothingAndTheNextOneIsAPress) {
  insert({u"10", u"20"});
  bind();
  list.DblClick = [&] { note("DblClick"); };
  bool keeps = true;
  Control& button = form.control(u"btn");
  button.Validate = [&](bool& cancel) { cancel = keeps; };
  show(form, [&] {
    button.SetFocus();
    EXPECT_FALSE(list.userPressed(1));
    EXPECT_FALSE(list.userPressedAgain(1));
    keeps = false;
    EXPECT_TRUE(list.userPressedAgain(1));
    EXPECT_EQ(happened(), "RowColChange:20");
  });
}

TEST_F(ListMouse, BehindAnotherFormIsRefused) {
  insert({u"10", u"20"});
  bind();
  SampleForm second{listRoster, u"frmSecond"};
  bool refused = false;
  form.control(u"btn").GotFocus = [&] { show(second, [&] { refused = !list.userPressed(1); }); };
  show(form, [&] { form.control(u"btn").SetFocus(); });
  EXPECT_TRUE(refused);
  EXPECT_EQ(happened(), "");
}

TEST_F(ListMouse, ADoubleClickOnARowThatIsGoneTakesNothing) {
  insert({u"10", u"20"});
  bind();
  list.DblClick = [&] { note("DblClick:" + toUtf8(list.Text())); };
  show(form, [&] {
    EXPECT_EQ(list.cellText(1, 0), u"20") << "drawn while it was there";
    execute(u"DELETE FROM Stati WHERE Status='20'");
    list.userPressed(1);
    list.userPressedAgain(1);
    EXPECT_EQ(happened(), "RowColChange: DblClick:");
  });
}

TEST_F(ListMouse, ADoubleClickOnAnEmptyListIsNone) {
  bind();
  list.DblClick = [&] { note("DblClick"); };
  list.userDoubleClick(-1);
  list.userDoubleClick(0);
  EXPECT_EQ(happened(), "");
}

TEST_F(ListMouse, PressingOnTheListRaisesNoClick) {
  insert({u"10"});
  bind();
  watchClicks(form);
  show(form, [&] {
    form.control(u"btn").SetFocus();
    click(list);
    EXPECT_EQ(focusOf(form), "List");
    EXPECT_EQ(happened(), "");
  });
}

// ---- arrows and paging

TEST_F(ListArrows, UpAndDownMoveTheMarkAndStopAtTheEnds) {
  insert({u"10", u"20", u"30"});
  auto rs = bind();
  show(form, [&] {
    press(key::Up);
    EXPECT_EQ(happened(), "");
    press(key::Down);
    press(key::Down);
    press(key::Down);
    EXPECT_EQ(happened(), "RowColChange:20 RowColChange:30");
    EXPECT_EQ(rs->currentRow(), 2);
    press(key::Up);
    EXPECT_EQ(happened(), "RowColChange:20");
  });
}

TEST_F(ListArrows, HomeAndEndGoToTheEnds) {
  insert({u"10", u"20", u"30"});
  bind();
  show(form, [&] {
    press(key::End);
    press(key::End);
    EXPECT_EQ(happened(), "RowColChange:30");
    press(key::Home);
    press(key::Home);
    EXPECT_EQ(happened(), "RowColChange:10");
  });
}

TEST_F(ListArrows, PagesAreAsLongAsTheListIsHigh) {
  insertMany(30);
  bind();
  EXPECT_EQ(list.rowsPerPage(), 10);
  show(form, [&] {
    press(key::PageDown);
    press(key::PageDown);
    EXPECT_EQ(list.Row(), 20);
    press(key::PageDown);
    EXPECT_EQ(list.Row(), 29);
    press(key::PageUp);
    EXPECT_EQ(list.Row(), 19);
    press(key::PageUp);
    press(key::PageUp);
    EXPECT_EQ(list.Row(), 0);
    EXPECT_EQ(happened(),
              "RowColChange:00011 RowColChange:00021 RowColChange:00030 RowColChange:00020 "
              "RowColChange:00010 RowColChange:00001");
  });
  list.ColumnHeaders(false);
  EXPECT_EQ(list.rowsPerPage(), 11);
}

TEST_F(ListArrows, DownLeadsOnIntoRowsThatAreNotKnownYet) {
  insertMany(2500);
  auto rs = bind();
  ASSERT_LT(list.knownRows(), 2500);
  const int edge = list.knownRows();
  mark(*rs, edge - 1);
  happened();
  show(form, [&] {
    press(key::Down);
    EXPECT_EQ(list.Row(), edge);
    EXPECT_GT(list.knownRows(), edge);
    press(key::End);
    EXPECT_EQ(list.Row(), 2499);
    EXPECT_EQ(list.Text(), u"02500");
    EXPECT_TRUE(list.rowsComplete());
    press(key::Down);
    EXPECT_EQ(list.Row(), 2499);
    press(key::Home);
    EXPECT_EQ(list.Text(), u"00001");
  });
  happened();
}

TEST_F(ListArrows, RowsBecomeKnownAtIdleTimeInSteps) {
  insertMany(2500);
  bind();
  const int known = list.knownRows();
  list.fetchRows(100);
  EXPECT_EQ(list.knownRows(), known + 100);
  EXPECT_FALSE(list.rowsComplete());
  while (!list.rowsComplete()) list.fetchRows(1000);
  EXPECT_EQ(list.knownRows(), 2500);
  list.fetchRows(1000);
  EXPECT_EQ(list.knownRows(), 2500);
  EXPECT_EQ(list.cellText(2499, 0), u"02500");
}

TEST_F(ListArrows, ARowThatOthersDeletedIsPassedLikeAnother) {
  insert({u"10", u"20", u"30"});
  auto rs = bind();
  execute(u"DELETE FROM Stati WHERE Status='20'");
  show(form, [&] {
    press(key::Down);
    EXPECT_EQ(list.Row(), 1);
    press(key::Down);
    EXPECT_EQ(list.Row(), 2);
    EXPECT_EQ(happened(), "RowColChange: RowColChange:30");
    EXPECT_EQ(rs->Fields(u"Status").Value(), Variant(u"30"));
  });
}

TEST_F(ListArrows, OnAnEmptyListDoNothing) {
  bind();
  show(form, [&] {
    for (const int code : {key::Up, key::Down, key::PageUp, key::PageDown, key::Home, key::End}) press(code);
    EXPECT_EQ(list.Row(), -1);
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ListArrows, OtherKeysAreNotTheLists) {
  insert({u"10", u"20"});
  bind();
  show(form, [&] {
    for (const int code :
         {key::Enter, key::Escape, key::Delete, key::Left, key::Right, key::F2, key::Backspace}) {
      EXPECT_FALSE(list.ownKey(KeyStroke::ofCode(code))) << code;
    }
    EXPECT_EQ(happened(), "");
  });
}

// ---- copying

TEST_F(ListCopy, CtrlCCopiesTheVisibleTextsOfTheMarkedRow) {
  execute(u"INSERT INTO Stati VALUES ('10', 'Interesse', 1.5)");
  bind();
  show(form, [&] {
    pressCtrl(u'c');
    EXPECT_EQ(desktop.clipboardText(), u"10\tInteresse\t1,5");
    list.Columns(0).Visible(false);
    list.Columns(2).Width(0);
    pressCtrl(u'c');
    EXPECT_EQ(desktop.clipboardText(), u"Interesse");
  });
}

TEST_F(ListCopy, WithoutAMarkedRowTheClipboardStays) {
  bind();
  desktop.copyToClipboard(u"vorher");
  show(form, [&] {
    pressCtrl(u'c');
    EXPECT_EQ(desktop.clipboardText(), u"vorher");
  });
}

}  // namespace
}  // namespace zqn::testing
