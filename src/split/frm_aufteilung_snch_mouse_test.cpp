// SPDX-License-Identifier: MIT
//
// The mouse on the quantity split: cells, rows that are taken and deleted, scrolling.
#include "testing/split.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

using SplitMouse = SplitTest;
using SplitRowMode = SplitTest;
using SplitScroll = SplitTest;

// ---- mouse

TEST_F(SplitMouse, CommitsTheOpenCellAndMovesTheEditor) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 3);
    type(u"neu");
    clickCell(2, 4);
    EXPECT_EQ(grid().TextMatrix(1, 3), u"neu");
    EXPECT_EQ(at(), "2,4");
    EXPECT_EQ(focus(), u"txtEdit");
    EXPECT_EQ(marks(), "- picCurrent picNew");
  });
}

TEST_F(SplitMouse, OnAReadOnlyCellLeavesTheEditorWhereItWas) {
  split(2, twoSerials, 2.0, [&] {
    clickCell(1, 5);
    type(u"S9");
    clickCell(2, 1);
    EXPECT_EQ(at(), "1,5");
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(editor().Text(), u"S9");
    EXPECT_EQ(focus(), u"txtEdit");
    clickCell(2, 2);
    EXPECT_EQ(at(), "1,5");
  });
}

TEST_F(SplitMouse, ADoubleClickOnAReadOnlyCellLeavesTheKeyboardToTheEditor) {
  for (const int button : {1, 2}) {
    split(1, twoBatches, 5.0, [&] {
      clickCell(1, 3);
      headless::doubleClickOn(grid(), {2, 2}, button);
      EXPECT_EQ(focus(), u"txtEdit") << "button " << button;
      EXPECT_EQ(at(), "1,3");
      typeAnd(u"neu", key::Enter);
      EXPECT_EQ(grid().TextMatrix(1, 3), u"neu");
    });
  }
}

TEST_F(SplitMouse, ADoubleClickIsTwoPressesWithEitherButton) {
  for (const int button : {1, 2}) {
    split(1, twoBatches, 5.0, [&] {
      clickCell(1, 3);
      type(u"neu");
      headless::doubleClickOn(grid(), {2, 4}, button);
      EXPECT_EQ(at(), "2,4") << "button " << button;
      EXPECT_EQ(grid().TextMatrix(1, 3), u"neu");
      EXPECT_EQ(focus(), u"txtEdit");
      headless::doubleClickOn(grid(), {1, 0}, button);
      EXPECT_TRUE(isRowMode());
      EXPECT_EQ(at() + " " + std::to_string(grid().ColSel()), "1,1 5");
      EXPECT_EQ(marks(), "picCurrenti - picNew");
      EXPECT_EQ(focus(), u"MSHFlexGrid1");
    });
  }
}

TEST_F(SplitMouse, AReleaseWithoutAPressChangesNothing) {
  split(1, twoBatches, 5.0, [&] {
    takeRows(1, 2);
    expectDeleteQuestion(u"2 Datensätze", MsgBoxResult::Yes);
    press(key::Delete);
    EXPECT_EQ(at(), "1,0");
    headless::GridMouse().release(grid(), {1, 3});
    EXPECT_EQ(at(), "1,0");
    headless::clickOn(grid(), {-1, 3});
    EXPECT_EQ(at(), "1,0") << "nor does one of a press beside the cells";
    clickCell(1, 3);
    type(u"neu");
    for (const int button : {1, 2}) headless::GridMouse().release(grid(), {2, 0}, button);
    EXPECT_EQ(editor().Text(), u"neu");
    EXPECT_EQ(focus(), u"txtEdit");
  });
}

TEST_F(SplitMouse, OnTheHeadingGoesToTheFirstRow) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(0, 4);
    EXPECT_EQ(at(), "1,4");
    EXPECT_EQ(grid().RowSel(), 1);
    clickCell(0, 0);
    EXPECT_TRUE(isRowMode());
    EXPECT_EQ(grid().Row(), 1);
  });
}

TEST_F(SplitMouse, OnAReadOnlyCellOfAnotherRowKeepsTheCellThatIsOpen) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 4);
    clickCell(2, 2);
    EXPECT_EQ(at(), "1,4");
    EXPECT_EQ(editor().Text(), u"30.06.2026");
    EXPECT_EQ(focus(), u"txtEdit");
  });
}

TEST_F(SplitMouse, BesideTheCellsChangesNothing) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(2, 3);
    type(u"neu");
    for (const GridSpot beside : {GridSpot{-1, 4}, GridSpot{1, -1}, GridSpot{-1, 0}}) {
      headless::clickOn(grid(), beside);
      EXPECT_FALSE(isRowMode());
      EXPECT_EQ(at(), "2,3");
      EXPECT_EQ(editor().Text(), u"neu");
      EXPECT_EQ(focus(), u"txtEdit");
    }
    clickCell(1, 0);
    clickCell(-1, 4);
    EXPECT_TRUE(isRowMode()) << "nor out of the row mode";
    EXPECT_EQ(focus(), u"MSHFlexGrid1");
  });
}

// ---- row mode

TEST_F(SplitRowMode, BeginsWithAPressInTheFirstColumn) {
  for (const int kind : {1, 3}) {
    split(kind, twoBatches, 5.0, [&] {
      clickCell(2, 3);
      type(u"neu");
      clickCell(1, 0);
      EXPECT_TRUE(isRowMode());
      EXPECT_FALSE(editor().Visible());
      EXPECT_EQ(focus(), u"MSHFlexGrid1");
      EXPECT_EQ(grid().TextMatrix(2, 3), u"neu") << "the open cell is committed first, kind " << kind;
      EXPECT_EQ(at(), "1,1");
      EXPECT_EQ(grid().ColSel(), 5);
      EXPECT_EQ(marks().substr(0, 11), "picCurrenti");
    });
  }
}

TEST_F(SplitRowMode, DragsOverRows) {
  split(1, twoBatches, 5.0, [&] {
    takeRows(1, 2);
    EXPECT_EQ(grid().Row(), 1);
    EXPECT_EQ(grid().RowSel(), 2);
    EXPECT_EQ(marks(), "picCurrenti - picNew");
    takeRows(1, 3);
    EXPECT_EQ(marks(), "picCurrenti - picNewi");
  });
}

TEST_F(SplitRowMode, EndsWithAPressInAnotherColumn) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 0);
    clickCell(2, 3);
    EXPECT_FALSE(isRowMode());
    EXPECT_EQ(at(), "2,3");
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(editor().Text(), u"L-2");
    EXPECT_EQ(focus(), u"txtEdit");
  });
}

TEST_F(SplitRowMode, LooksSelectedOnlyOnceTheButtonIsReleased) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 0);
    EXPECT_EQ(marks(), "picCurrenti - picNew");
    headless::GridMouse mouse;
    mouse.press(grid(), {2, 0});
    EXPECT_EQ(marks(), "- picCurrent picNew");
    mouse.release(grid(), {2, 0});
    EXPECT_EQ(marks(), "- picCurrenti picNew");
  });
}

TEST_F(SplitRowMode, EndsInTheFirstColumnOfTheSameRow) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(2, 0);
    clickCell(2, 1);
    EXPECT_EQ(at(), "2,1");
    EXPECT_EQ(editor().Text(), u"3,000");
    typeAnd(u"4", key::Enter);
    EXPECT_EQ(grid().TextMatrix(2, 1), u"4,000");
  });
}

TEST_F(SplitRowMode, AReadOnlyCellLeadsToTheOneOfItsRowThatCanBeEdited) {
  split(2, twoSerials, 2.0, [&] {
    clickCell(1, 0);
    clickCell(2, 1);
    EXPECT_FALSE(isRowMode());
    EXPECT_EQ(at(), "2,5");
    EXPECT_EQ(focus(), u"txtEdit");
  });
}

TEST_F(SplitRowMode, DeleteAsksAndTakesTheRowsAway) {
  split(1, twoBatches, 10.0, [&] {
    clickCell(1, 0);
    expectDeleteQuestion(u"1 Datensatz", MsgBoxResult::No);
    press(key::Delete);
    EXPECT_EQ(grid().Rows(), 4);
    expectDeleteQuestion(u"1 Datensatz", MsgBoxResult::Yes);
    press(key::Delete);
    EXPECT_THAT(gridRows(), ElementsAre(u"3,000|Stk|L-2||", u"7,000|Stk|||"));
    EXPECT_EQ(total(), u"3,000");
    EXPECT_EQ(marks(), "picCurrent picNew");
    EXPECT_EQ(focus(), u"MSHFlexGrid1");
    EXPECT_EQ(at(), "1,0");
    EXPECT_EQ(grid().RowSel(), 1);
    EXPECT_EQ(grid().ColSel(), 5);
    EXPECT_FALSE(editor().Visible()) << "the editor does not follow in row mode";
  });
}

TEST_F(SplitRowMode, DeleteOfRowsTakenUpwardsStandsOnTheFirstOfThem) {
  split(1, u"1||\"A\"\r\n1||\"B\"\r\n1||\"C\"\r\n1||\"D\"", 10.0, [&] {
    takeRows(3, 2);
    expectDeleteQuestion(u"2 Datensätze", MsgBoxResult::Yes);
    press(key::Delete);
    EXPECT_THAT(gridRows(), ElementsAre(u"1,000||A||", u"1,000||D||", u"8,000|Stk|||"));
    EXPECT_EQ(at(), "2,0");
    EXPECT_EQ(grid().RowSel(), 2);
  });
}

TEST_F(SplitRowMode, DeleteSparesTheBottomRow) {
  split(1, twoBatches, 10.0, [&] {
    clickCell(3, 0);
    press(key::Delete);
    EXPECT_EQ(grid().Rows(), 4) << "nothing is asked for the bottom row alone";
    takeRows(1, 3);
    expectDeleteQuestion(u"2 Datensätze", MsgBoxResult::Yes);
    press(key::Delete);
    EXPECT_THAT(gridRows(), ElementsAre(u"10,000|Stk|||"));
    press(key::Delete);
    clickCell(1, 3);
    type(u"weiter");
    EXPECT_THAT(gridRows(), SizeIs(2));
  });
}

TEST_F(SplitRowMode, DeleteInTheEditorIsAnOrdinaryKey) {
  split(1, twoBatches, 10.0, [&] {
    clickCell(1, 3);
    press(key::Delete);
    EXPECT_EQ(editor().Text(), u"");
    EXPECT_EQ(grid().Rows(), 4);
  });
}

// ---- scrolling

TEST_F(SplitScroll, TheEditorFollowsItsRowAndHidesOutOfSight) {
  String text;
  for (int i = 0; i < 100; ++i) text += u"1|\"Stk\"|\"L\"\r\n";
  split(1, text, 200.0, [&] {
    EXPECT_TRUE(grid().RowIsVisible(101)) << "the bottom row, where the cursor stands, is in sight";
    const int top = editor().Top();
    grid().userScrolled(grid().TopRow() - 2, 1);
    EXPECT_FALSE(editor().Visible()) << "below the lower edge";
    grid().userScrolled(grid().TopRow() + 2, 1);
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(editor().Top(), top);
    EXPECT_EQ(focus(), u"txtEdit") << "whoever scrolls back can type on";
    clickCell(95, 3);
    grid().userScrolled(grid().TopRow() - 3, 1);
    EXPECT_EQ(editor().Top(), grid().Top() + grid().CellTop() + 15);
    grid().userScrolled(1, 1);
    EXPECT_FALSE(editor().Visible());
    clickCell(2, 3);
    EXPECT_TRUE(editor().Visible());
    clickCell(2, 0);
    grid().userScrolled(10, 1);
    EXPECT_FALSE(editor().Visible()) << "in row mode there is none";
  });
}

TEST_F(SplitScroll, TheEditorHidesAboveAndWhereTheEdgeCutsItsRow) {
  String text;
  for (int i = 0; i < 100; ++i) text += u"1|\"Stk\"|\"L\"\r\n";
  split(1, text, 200.0, [&] {
    clickCell(20, 3);
    grid().userScrolled(21, 1);
    EXPECT_FALSE(editor().Visible()) << "above the upper edge";
    grid().userScrolled(20, 1);
    EXPECT_TRUE(editor().Visible());
    int top = 20;
    while (editor().Visible()) grid().userScrolled(--top, 1);
    EXPECT_TRUE(grid().RowIsVisible(20)) << "part of the row is still in sight";
  });
}

TEST_F(SplitScroll, AKeyTypedWhileTheEditorIsOutOfSightBringsItsCellBackFirst) {
  String text;
  for (int i = 0; i < 100; ++i) text += u"1|\"Stk\"|\"L\"\r\n";
  const auto scrolledAway = [&] {
    clickCell(2, 3);
    press(key::End);
    grid().userScrolled(60, 1);
    EXPECT_FALSE(editor().Visible());
    EXPECT_EQ(focus(), u"");
  };
  const auto isBack = [&] {
    EXPECT_TRUE(grid().RowIsVisible(2));
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(editor().Top(), grid().Top() + grid().CellTop() + 15);
    EXPECT_EQ(focus(), u"txtEdit");
  };
  split(1, text, 200.0, [&] {
    scrolledAway();
    type(u"-7");
    isBack();
    EXPECT_EQ(editor().Text(), u"L-7") << "the caret stands where it stood";
    EXPECT_EQ(marks().substr(0, 9), "- picEdit");
    scrolledAway();
    press(key::Enter);
    EXPECT_EQ(at(), "2,4");
    EXPECT_EQ(grid().TextMatrix(2, 3), u"L-7");
    EXPECT_EQ(focus(), u"txtEdit");
    scrolledAway();
    paste(u"x");
    isBack();
    EXPECT_EQ(editor().Text(), u"L-7x");
    scrolledAway();
    for (const int silent : {16, 17, 18, int{key::F2}, 144}) press(silent);
    press('A', shift::Alt);
    EXPECT_FALSE(editor().Visible()) << "keys that do nothing to a cell";
    expectDifference(MsgBoxResult::No);
    click(u"btnOK");
    isBack();
  });
}

TEST_F(SplitScroll, APressOnAReadOnlyCellBringsTheEditorBackFromOutOfSight) {
  String text;
  for (int i = 0; i < 100; ++i) text += u"1|\"Stk\"|\"L\"\r\n";
  split(1, text, 200.0, [&] {
    clickCell(2, 3);
    clickCell(80, 2);
    EXPECT_EQ(at(), "2,3");
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(focus(), u"txtEdit");
  });
}

TEST_F(SplitScroll, KeysBeyondTheEdgeScrollAlong) {
  String text;
  for (int i = 0; i < 100; ++i) text += u"1|\"Stk\"|\"L\"\r\n";
  split(1, text, 200.0, [&] {
    clickCell(1, 3);
    for (int i = 0; i < 30; ++i) press(key::Down);
    EXPECT_EQ(at(), "31,3");
    EXPECT_TRUE(grid().RowIsVisible(31));
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(editor().Top(), grid().Top() + grid().CellTop() + 15);
  });
}

}  // namespace
}  // namespace zqn::testing
