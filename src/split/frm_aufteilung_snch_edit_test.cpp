// SPDX-License-Identifier: MIT
//
// Keys, mouse and row mode of the quantity split.
#include "split/split_testing.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

using SplitEditor = SplitTest;
using SplitKeys = SplitTest;
using SplitUndo = SplitTest;
using SplitMouse = SplitTest;
using SplitRowMode = SplitTest;
using SplitPaste = SplitTest;
using SplitScroll = SplitTest;

// ---- the editor

TEST_F(SplitEditor, LiesOverItsCell) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(2, 4);
    EXPECT_EQ(editor().Left(), grid().Left() + grid().CellLeft() + 45);
    EXPECT_EQ(editor().Top(), grid().Top() + grid().CellTop() + 15);
    EXPECT_EQ(editor().Width(), grid().CellWidth() - 45);
    EXPECT_EQ(editor().Height(), grid().CellHeight() - 15);
    EXPECT_EQ(editor().Alignment(), Alignment::Left);
    clickCell(2, 1);
    EXPECT_EQ(editor().Alignment(), Alignment::Right);
    EXPECT_EQ(editor().SelLength(), 5);
  });
}

TEST_F(SplitEditor, RepairsDatesAndReadsNumbers) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 4);
    typeAnd(u"311", key::Enter);
    EXPECT_EQ(grid().TextMatrix(1, 4), u"31.01.2026");
    clickCell(1, 4);
    typeAnd(u"0", key::Enter);
    EXPECT_EQ(grid().TextMatrix(1, 4), u"01.01.2026");
    clickCell(2, 4);
    press(key::Enter);
    EXPECT_EQ(grid().TextMatrix(2, 4), u"") << "an empty date stays empty";
    clickCell(2, 1);
    typeAnd(u"abc", key::Enter);
    EXPECT_EQ(grid().TextMatrix(2, 1), u"0,000");
  });
}

TEST_F(SplitEditor, TakesNoAmpersandAndNoOpenParenthesis) {
  split(1, u"", 5.0, [&] {
    type(u"A&(B)");
    EXPECT_EQ(editor().Text(), u"AB)");
  });
}

TEST_F(SplitEditor, ABlankIsTextButNoTyping) {
  split(1, u"", 5.0, [&] {
    type(u" ");
    EXPECT_EQ(editor().Text(), u" ");
    EXPECT_EQ(grid().Rows(), 2) << "the bottom row stays the bottom row";
    type(u"x");
    EXPECT_EQ(grid().Rows(), 3);
  });
}

// ---- keys

TEST_F(SplitKeys, TypingInTheBottomRowAddsOneAndMarksIt) {
  split(1, u"", 5.0, [&] {
    EXPECT_EQ(marks(), "picCurrent");
    type(u"A");
    EXPECT_EQ(grid().Rows(), 3);
    EXPECT_EQ(marks(), "picEdit picNew");
    EXPECT_EQ(grid().cell(1, 0).pictureAlignment, cell_alignment::CenterCenter);
    type(u"B");
    EXPECT_EQ(grid().Rows(), 3);
    press(key::Down);
    EXPECT_EQ(marks(), "- picCurrent");
  });
}

TEST_F(SplitKeys, EnterGoesThroughTheColumnsAndOnToTheNextRow) {
  split(1, u"", 5.0, [&] {
    clickCell(1, 1);
    typeAnd(u"2", key::Enter);
    EXPECT_EQ(at(), "1,3");
    typeAnd(u"L-1", key::Enter);
    EXPECT_EQ(at(), "1,4");
    typeAnd(u"311226", key::Enter);
    EXPECT_EQ(at(), "2,1");
    EXPECT_EQ(editor().Text(), u"3,000");
    EXPECT_THAT(gridRows(), ElementsAre(u"2,000|Stk|L-1|31.12.2026|", u"3,000|Stk|||"));
  });
}

TEST_F(SplitKeys, EnterInTheLastColumnGoesOnWhereSerialNumbersAreKept) {
  split(2, twoSerials, 3.0, [&] {
    clickCell(1, 5);
    press(key::Enter);
    EXPECT_EQ(at(), "2,5");
    press(key::Enter);
    EXPECT_EQ(at(), "3,5");
    press(key::Enter);
    EXPECT_EQ(at(), "3,5") << "an empty bottom row holds";
    typeAnd(u"S3", key::Enter);
    EXPECT_EQ(at(), "4,5");
    EXPECT_THAT(gridRows(), SizeIs(4));
  });
}

/// A blank is no typing, so the bottom row can be complete and still be the bottom row.
TEST_F(SplitKeys, EnterOnACompleteBottomRowAddsARowAndTabDoesOnceItsTextIsIn) {
  split(2, u"", 3.0, [&] {
    type(u" ");
    press(key::Tab);
    EXPECT_EQ(grid().Rows(), 2) << "the blank was not in the cell yet";
    EXPECT_EQ(grid().TextMatrix(1, 5), u"") << "and Tab has not put it there";
    type(u" ");
    press(key::Enter);
    EXPECT_EQ(grid().Rows(), 3);
    EXPECT_EQ(at(), "2,5");
    EXPECT_EQ(grid().TextMatrix(1, 5), u" ");
    EXPECT_EQ(gridRows().back(), u"1,000|Stk|||");
    // Now the row's text is in its cell before Tab is pressed.
    grid().TextMatrix(2, 5, u" ");
    press(key::Tab);
    EXPECT_EQ(grid().Rows(), 4);
    EXPECT_EQ(at(), "3,5");
  });
}

TEST_F(SplitKeys, TabGoesAsEnterAndShiftTabBack) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 1);
    typeAnd(u"1", key::Tab);
    EXPECT_EQ(at(), "1,3");
    press(key::Tab);
    EXPECT_EQ(at(), "1,4");
    press(key::Tab);
    EXPECT_EQ(at(), "2,1");
    EXPECT_EQ(grid().TextMatrix(1, 1), u"1,000");
    press(key::Tab, shift::Shift);
    EXPECT_EQ(at(), "1,4");
    press(key::Tab, shift::Shift);
    press(key::Tab, shift::Shift);
    EXPECT_EQ(at(), "1,1");
    press(key::Tab, shift::Shift);
    EXPECT_EQ(at(), "1,1") << "nothing stands in front of the first cell";
    press(key::Tab, shift::Ctrl);
    EXPECT_EQ(at(), "1,1");
    EXPECT_EQ(focus(), u"txtEdit");
  });
}

TEST_F(SplitKeys, ArrowsMoveAmongTheRows) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 3);
    typeAnd(u"X", key::Down);
    EXPECT_EQ(at(), "2,3");
    EXPECT_EQ(grid().TextMatrix(1, 3), u"X");
    press(key::Up);
    EXPECT_EQ(at(), "1,3");
    EXPECT_EQ(editor().Text(), u"X");
    press(key::Up);
    EXPECT_EQ(at(), "1,3");
    EXPECT_EQ(editor().SelLength(), 1) << "the text is selected anew";
    press(key::Left);
    EXPECT_EQ(at(), "1,3") << "the caret moves, not the cursor";
    EXPECT_EQ(editor().SelLength(), 0);
  });
}

TEST_F(SplitKeys, DownHoldsOnAnIncompleteBottomRow) {
  split(1, u"", 5.0, [&] {
    press(key::Down);
    EXPECT_EQ(at(), "1,3");
    EXPECT_EQ(grid().Rows(), 2);
  });
}

TEST_F(SplitKeys, DownOnACompleteBottomRowAddsOne) {
  split(2, u"", 5.0, [&] {
    type(u" ");
    press(key::Down);
    EXPECT_EQ(at(), "2,5");
    EXPECT_EQ(gridRows().back(), u"1,000|Stk|||");
  });
}

TEST_F(SplitKeys, FunctionKeysAndShortcutsAreNoTyping) {
  split(1, u"", 5.0, [&] {
    press(key::F2);
    press('A', shift::Ctrl);
    press(key::Delete);
    press(144);
    EXPECT_EQ(grid().Rows(), 2);
    press('X', shift::Ctrl);
    EXPECT_EQ(grid().Rows(), 3);
  });
}

TEST_F(SplitKeys, EscClosesTheFormUnchanged) {
  const Variant result = split(1, twoBatches, 9.0, [&] {
    type(u"A");
    press(key::Escape);
  });
  EXPECT_EQ(result, Variant(twoBatches));
  EXPECT_EQ(param.elements()[1], Variant(9.0));
}

TEST_F(SplitKeys, F10ClosesAndF9TakesOverOnRelease) {
  EXPECT_EQ(split(2, twoSerials, 2.0, [&] { press(key::F10); }), Variant(twoSerials));
  split(2, twoSerials, 2.0, [&] {
    form().keyPressed(KeyStroke::ofCode(key::F9));
    EXPECT_TRUE(form().Visible());
    form().keyReleased(key::F9, 0);
    EXPECT_FALSE(form().Visible());
  });
  EXPECT_EQ(param.elements()[1], Variant(2.0));
}

// ---- undo

TEST_F(SplitUndo, TakesBackTheRowThatTypingHasAdded) {
  split(1, u"", 5.0, [&] {
    form().control(u"btnCancel").Enabled(false);
    type(u"A");
    EXPECT_EQ(grid().Rows(), 3);
    press(key::Escape);
    EXPECT_TRUE(form().Visible());
    EXPECT_THAT(gridRows(), ElementsAre(u"5,000|Stk|||"));
    EXPECT_EQ(editor().Text(), u"");
    EXPECT_EQ(marks(), "picCurrent");
    EXPECT_EQ(total(), u"0,000");
  });
}

TEST_F(SplitUndo, TakesBackCellsOfTheRowThatWereCommitted) {
  split(1, twoBatches, 5.0, [&] {
    form().control(u"btnCancel").Enabled(false);
    clickCell(1, 1);
    typeAnd(u"7", key::Enter);
    typeAnd(u"neu", key::Enter);
    EXPECT_EQ(gridRows().front(), u"7,000|Stk|neu|30.06.2026|");
    EXPECT_EQ(total(), u"10,000");
    press(key::Escape);
    EXPECT_EQ(gridRows().front(), u"2,000|Stk|L-1|30.06.2026|");
    EXPECT_EQ(total(), u"5,000");
    EXPECT_EQ(marks(), "picCurrent - picNew");
  });
}

TEST_F(SplitUndo, EndsWithTheRow) {
  split(1, twoBatches, 5.0, [&] {
    form().control(u"btnCancel").Enabled(false);
    clickCell(1, 3);
    typeAnd(u"neu", key::Down);
    press(key::Up);
    press(key::Escape);
    EXPECT_EQ(grid().TextMatrix(1, 3), u"neu");
  });
}

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

TEST_F(SplitMouse, BesideTheCellsChangesNothing) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 3);
    type(u"neu");
    clickCell(-1, 3);
    EXPECT_EQ(at(), "1,3");
    EXPECT_EQ(editor().Text(), u"neu");
    EXPECT_EQ(focus(), u"txtEdit");
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

// ---- paste

TEST_F(SplitPaste, LinesFillCellAfterCellAsIfTyped) {
  split(1, u"", 9.0, [&] {
    clickCell(1, 1);
    paste(u"2\tL-1\t31.12.26\r\n3\tL-2\t311227\r\n");
    EXPECT_THAT(gridRows(),
                ElementsAre(u"2,000|Stk|L-1|31.12.2026|", u"3,000|Stk|L-2|31.12.2027|", u"4,000|Stk|||"));
    EXPECT_EQ(at(), "3,1");
  });
}

TEST_F(SplitPaste, ASingleTextGoesInAndCountsAsTyped) {
  split(2, u"", 2.0, [&] {
    paste(u"S1 und S2");
    EXPECT_EQ(editor().Text(), u"S1 und S2");
    EXPECT_EQ(grid().Rows(), 3);
    editor().userPasted(u"!");
    EXPECT_EQ(editor().Text(), u"S1 und S2!") << "by the menu, too";
  });
}

TEST_F(SplitPaste, AScannersSuffixLeadsToTheNextCell) {
  split(2, u"", 3.0, [&] {
    for (const char16_t* code : {u"S1", u"S2", u"S3"}) typeAnd(code, key::Enter);
    EXPECT_THAT(gridRows(), SizeIs(4));
    EXPECT_EQ(grid().TextMatrix(3, 5), u"S3");
    EXPECT_EQ(totalColour(), green);
  });
  split(2, u"", 3.0, [&] {
    paste(u"S1\nS2\tS3");
    EXPECT_EQ(grid().TextMatrix(2, 5), u"S2");
    EXPECT_EQ(editor().Text(), u"S3");
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
