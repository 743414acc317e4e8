// SPDX-License-Identifier: MIT
//
// The cell editor of the quantity split: where it lies, what its keys do, what is pasted.
#include "testing/split.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

using SplitEditor = SplitTest;
using SplitKeys = SplitTest;
using SplitUndo = SplitTest;
using SplitPaste = SplitTest;

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

TEST_F(SplitEditor, ComesBackOverItsCellWhenItsTextChangesWhileItIsHidden) {
  split(3, twoBatches, 5.0, [&] {
    clickCell(1, 3);
    clickCell(2, 0);
    EXPECT_FALSE(editor().Visible());
    editor().Text(u"neu");
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(editor().Top(), grid().Top() + grid().CellTop() + 15);
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
    EXPECT_EQ(grid().cell(2, 2).backColor, colour::ButtonFace) << "the unit of the new row";
    EXPECT_EQ(grid().cell(2, 1).alignment, cell_alignment::RightCenter);
    EXPECT_EQ(grid().cell(2, 3).alignment, cell_alignment::LeftCenter);
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

TEST_F(SplitKeys, ThatMoveAreSwallowedAndTheTextIsSelectedAnew) {
  struct Press {
    int row, col, code, shift;
  };
  const std::vector<Press> moves = {
      {1, 1, key::Enter, 0},           // to the next column
      {1, 4, key::Enter, 0},           // to the next row
      {3, 4, key::Enter, 0},           // held on the bottom row
      {1, 1, key::Tab, 0},             //
      {1, 4, key::Tab, 0},             //
      {3, 4, key::Tab, 0},             //
      {2, 3, key::Tab, shift::Shift},  //
      {2, 1, key::Tab, shift::Shift},  //
      {1, 1, key::Tab, shift::Shift},  // nothing stands in front
      {1, 3, key::Down, 0},            //
      {3, 3, key::Down, 0},            // held on the bottom row
      {2, 3, key::Up, 0},              //
      {1, 3, key::Up, 0},              // nothing stands above
  };
  split(1, twoBatches, 5.0, [&] {
    for (const Press& move : moves) {
      clickCell(move.row, move.col);
      press(key::End);
      int code = move.code;
      editor().KeyDown.raise(code, move.shift);
      SCOPED_TRACE("key " + std::to_string(move.code) + " in " + std::to_string(move.row) + "," +
                   std::to_string(move.col));
      EXPECT_EQ(code, 0);
      EXPECT_EQ(editor().SelStart(), 0);
      EXPECT_EQ(editor().SelLength(), static_cast<int>(editor().Text().size()));
    }
    for (const int code : {int{key::F2}, int{key::Left}, int{key::Delete}, 93}) {
      int passed = code;
      editor().KeyDown.raise(passed, 0);
      EXPECT_EQ(passed, code) << "goes on into the box";
    }
    int tab = key::Tab;
    editor().KeyDown.raise(tab, shift::Ctrl);
    EXPECT_EQ(tab, key::Tab);
  });
}

TEST_F(SplitKeys, ThatMoveAreNoCharactersEither) {
  split(1, twoBatches, 5.0, [&] {
    for (const int code : {13, 9, 38, 40, 27}) {
      int swallowed = code;
      editor().KeyPress.raise(swallowed);
      EXPECT_EQ(swallowed, 0) << code;
    }
    int letter = u'a';
    editor().KeyPress.raise(letter);
    EXPECT_EQ(letter, u'a');
  });
}

TEST_F(SplitKeys, FunctionKeysAndShortcutsAreNoTyping) {
  split(1, u"", 5.0, [&] {
    press(key::F2);
    press('A', shift::Ctrl);
    press(key::Delete);
    press(144);
    EXPECT_EQ(grid().Rows(), 2);
    for (const int held : {int{shift::Alt}, shift::Alt | shift::Shift, shift::Alt | shift::Ctrl}) {
      desktop.press({'S', held, u's'});
      desktop.press({'7', held, u'7'});
    }
    EXPECT_EQ(grid().Rows(), 2) << "with Alt, whatever it would type";
    press('X', shift::Ctrl);
    EXPECT_EQ(grid().Rows(), 3);
  });
}

TEST_F(SplitKeys, EscClosesTheFormUnchanged) {
  const Variant result = split(1, twoBatches, 9.0, [&] {
    type(u"A");
    press(key::Escape);
    EXPECT_FALSE(form().Visible());
  });
  EXPECT_EQ(result, Variant(twoBatches));
  EXPECT_EQ(param.elements()[1], Variant(9.0));
}

TEST_F(SplitKeys, F10ClosesAndF9TakesOverOnRelease) {
  EXPECT_EQ(split(2, twoSerials, 2.0,
                  [&] {
                    form().keyPressed(KeyStroke::ofCode(key::F10));
                    EXPECT_TRUE(form().Visible());
                    form().keyReleased(key::F10, shift::Shift);
                    EXPECT_FALSE(form().Visible()) << "whatever the shift keys";
                  }),
            Variant(twoSerials));
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

// ---- paste

TEST_F(SplitPaste, IsNoTyping) {
  split(2, u"", 2.0, [&] {
    paste(u"A&(B)");
    EXPECT_EQ(editor().Text(), u"A&(B)");
    paste(u"C&(1)\r\nC&(2)");
    EXPECT_EQ(grid().TextMatrix(1, 5), u"A&(B)C&(1)");
    EXPECT_EQ(editor().Text(), u"C&(2)");
  });
}

TEST_F(SplitPaste, AColumnStaysAColumn) {
  split(1, u"", 9.0, [&] {
    paste(u"L-1\r\nL-2\nL-3\rL-4");
    press(key::Tab);
    EXPECT_THAT(gridRows(), ElementsAre(u"9,000|Stk|L-1||", u"0,000|Stk|L-2||", u"0,000|Stk|L-3||",
                                        u"0,000|Stk|L-4||", u"0,000|Stk|||"));
  });
  split(3, twoBatches, 5.0, [&] {
    clickCell(1, 4);
    paste(u"31.1.27\r\n28.2.27\r\n");
    EXPECT_EQ(grid().TextMatrix(1, 4), u"31.01.2027");
    EXPECT_EQ(grid().TextMatrix(2, 4), u"28.02.2027");
    EXPECT_EQ(at(), "3,4") << "below the last line";
  });
}

TEST_F(SplitPaste, ABlockStaysABlockFromTheColumnWhereItBegan) {
  split(1, u"", 9.0, [&] {
    paste(u"L-1\t31.1.27\r\nL-2\t28.2.27");
    press(key::Enter);
    EXPECT_THAT(gridRows(),
                ElementsAre(u"9,000|Stk|L-1|31.01.2027|", u"0,000|Stk|L-2|28.02.2027|", u"0,000|Stk|||"));
  });
}

TEST_F(SplitPaste, EmptyCellsLeaveOursAloneAndEmptyLinesAddNoRow) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 1);
    paste(u"1\t\t1.1.27\r\n\tneu");
    press(key::Enter);
    EXPECT_THAT(gridRows(), ElementsAre(u"1,000|Stk|L-1|01.01.2027|", u"3,000|Stk|neu||", u"1,000|Stk|||"));
    clickCell(3, 3);
    paste(u"A\r\n\r\n\r\nB\r\n\r\n");
    EXPECT_THAT(gridRows(), SizeIs(5)) << "the two, A, B and the bottom row";
    EXPECT_EQ(at(), "5,3");
  });
}

TEST_F(SplitPaste, LinesFillCellAfterCell) {
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
  split(2, u"", 2.0, [&] {
    editor().userPasted(u"S1");
    EXPECT_EQ(grid().Rows(), 3);
    EXPECT_EQ(marks(), "picEdit picNew");
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

}  // namespace
}  // namespace zqn::testing
