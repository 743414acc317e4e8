// SPDX-License-Identifier: MIT
//
// A person at a grid: mouse and keys.
#include "testing/flex_grid.h"

namespace zqn::testing {
namespace {

class GridMouse : public GridTest {
 protected:
  GridMouse() {
    grid.MouseDown = [this](int button, int shift) {
      note("MouseDown" + std::to_string(button) + "/" + std::to_string(shift) + " on " +
           std::to_string(grid.MouseRow()) + "," + std::to_string(grid.MouseCol()));
    };
    grid.MouseUp = [this](int button, int) { note("MouseUp" + std::to_string(button)); };
  }
  void clickCell(int row, int col, int shift = 0) {
    grid.userPressed({row, col}, 1, shift);
    grid.userReleased({row, col}, 1, shift);
  }
  /// Runs in the open form.
  void open(const std::function<void()>& acts) { show(form, acts); }
};
using GridKeys = GridTest;

TEST_F(GridMouse, MovesTheCursorInOneStepBeforeMouseDown) {
  open([&] {
    clickCell(2, 3);
    EXPECT_EQ(happened(),
              "LeaveCell:1,1 SelChange:2,3 EnterCell:2,3 RowColChange:2,3 MouseDown1/0 on 2,3 MouseUp1");
    clickCell(2, 3);
    EXPECT_EQ(happened(), "MouseDown1/0 on 2,3 MouseUp1");
  });
}

TEST_F(GridMouse, TheRightButtonLeavesTheCursor) {
  open([&] {
    grid.userPressed({2, 3}, 2, 0);
    grid.userReleased({2, 3}, 2, 0);
    EXPECT_EQ(happened(), "MouseDown2/0 on 2,3 MouseUp2");
    EXPECT_EQ(selection(), "1,1-1,1");
  });
}

TEST_F(GridMouse, BesideTheCellsLeavesTheCursor) {
  open([&] {
    clickCell(-1, 2);
    clickCell(2, -1);
    EXPECT_EQ(happened(), "MouseDown1/0 on -1,2 MouseUp1 MouseDown1/0 on 2,-1 MouseUp1");
    EXPECT_EQ(selection(), "1,1-1,1");
  });
}

TEST_F(GridMouse, AHeadingTakesItsRowItsColumnOrEverything) {
  open([&] {
    clickCell(2, 0);
    EXPECT_EQ(selection(), "2,1-2,4");
    clickCell(0, 3);
    EXPECT_EQ(selection(), "1,3-3,3");
    clickCell(0, 0);
    EXPECT_EQ(selection(), "1,1-3,4");
    grid.AllowBigSelection(false);
    clickCell(2, 0);
    EXPECT_EQ(selection(), "2,1-2,1");
    happened();
  });
}

TEST_F(GridMouse, TakesWholeRowsOrColumnsWhereTheModeSaysSo) {
  open([&] {
    grid.SelectionMode(FlexGrid::ByRow);
    clickCell(2, 3);
    EXPECT_EQ(selection(), "2,1-2,4");
    grid.SelectionMode(FlexGrid::ByColumn);
    clickCell(2, 3);
    EXPECT_EQ(selection(), "1,3-3,3");
    happened();
  });
}

TEST_F(GridMouse, WithShiftExtendsTheSelection) {
  open([&] {
    clickCell(1, 2);
    happened();
    clickCell(3, 4, shift::Shift);
    EXPECT_EQ(selection(), "1,2-3,4");
    EXPECT_EQ(happened(), "SelChange:1,2 MouseDown1/1 on 3,4 MouseUp1");
  });
}

TEST_F(GridMouse, DraggingExtendsAndTellsOnceAtTheEnd) {
  open([&] {
    grid.userPressed({1, 1}, 1, 0);
    happened();
    grid.userDragged({2, 2});
    grid.userDragged({3, 3});
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(selection(), "1,1-3,3");
    grid.userReleased({3, 3}, 1, 0);
    EXPECT_EQ(happened(), "SelChange:1,1 MouseUp1");
    grid.userDragged({1, 1});
    EXPECT_EQ(selection(), "1,1-3,3") << "no button is down";
  });
}

TEST_F(GridMouse, DraggingFromAHeadingTakesWholeRows) {
  open([&] {
    grid.userPressed({1, 0}, 1, 0);
    grid.userDragged({3, 2});
    EXPECT_EQ(selection(), "1,1-3,4");
    grid.userDragged({0, 2});
    EXPECT_EQ(selection(), "1,1-1,4") << "never into the heading";
    grid.userReleased({1, 0}, 1, 0);
    happened();
  });
}

TEST_F(GridMouse, ShowsTheWholeRowThatWasPressed) {
  fill(100);
  grid.Height(11 * 240 + 30 + 120);
  open([&] {
    ASSERT_EQ(grid.layout().rows().size(), 12U) << "the last one is cut";
    clickCell(11, 1);
    EXPECT_EQ(grid.TopRow(), 2);
    EXPECT_EQ(happened(),
              "LeaveCell:1,1 Scroll:2,1 SelChange:11,1 EnterCell:11,1 RowColChange:11,1 "
              "MouseDown1/0 on 11,1 MouseUp1");
  });
}

TEST_F(GridMouse, ADoubleClickIsTwoPressesAndDblClickFollowsTheSecondOfTheLeftButton) {
  grid.Click = [this] { note("Click"); };
  grid.DblClick = [this] { note("DblClick on " + std::to_string(grid.MouseRow())); };
  open([&] {
    clickCell(2, 2);
    EXPECT_EQ(
        happened(),
        "LeaveCell:1,1 SelChange:2,2 EnterCell:2,2 RowColChange:2,2 MouseDown1/0 on 2,2 MouseUp1 Click");
    grid.userPressed({2, 2}, 1, 0, Press::SecondOfDoubleClick);
    grid.userReleased({2, 2}, 1, 0);
    EXPECT_EQ(happened(), "MouseDown1/0 on 2,2 DblClick on 2 MouseUp1");
    grid.userPressed({3, 3}, 2, 0, Press::SecondOfDoubleClick);
    grid.userReleased({3, 3}, 2, 0);
    EXPECT_EQ(happened(), "MouseDown2/0 on 3,3 MouseUp2");
  });
}

TEST_F(GridMouse, TheSecondPressOfADoubleClickDragsLikeTheFirst) {
  open([&] {
    clickCell(1, 0);
    grid.userPressed({1, 0}, 1, 0, Press::SecondOfDoubleClick);
    grid.userDragged({3, 0});
    grid.userReleased({3, 0}, 1, 0);
    EXPECT_EQ(selection(), "1,1-3,4");
    happened();
  });
}

TEST_F(GridMouse, AReleaseWithoutAPressIsNone) {
  grid.Click = [this] { note("Click"); };
  open([&] {
    grid.userReleased({2, 2}, 1, 0);
    EXPECT_EQ(happened(), "");
    grid.userPressed({2, 2}, 2, 0);
    grid.userReleased({2, 2}, 1, 0);
    EXPECT_EQ(happened(), "MouseDown2/0 on 2,2") << "the other button";
    EXPECT_EQ(grid.MouseRow(), 2);
    grid.userReleased({2, 2}, 2, 0);
    EXPECT_EQ(happened(), "MouseUp2");
  });
}

TEST_F(GridMouse, AButtonThatComesUpOutsideMakesNoClick) {
  grid.Click = [this] { note("Click"); };
  open([&] {
    grid.userPressed({1, 1}, 1, 0);
    grid.userReleased(grid.layout().spotAt({-5, 20}), 1, 0);
    EXPECT_EQ(happened(), "MouseDown1/0 on 1,1 MouseUp1");
  });
}

TEST_F(GridMouse, TheWheelScrollsThreeRowsANotchAndItsPartsAddUp) {
  fill(100);
  open([&] {
    grid.userTurnedWheel(-120, 0);
    EXPECT_EQ(grid.TopRow(), 4);
    for (int i = 0; i < 3; ++i) grid.userTurnedWheel(-15, 0);
    EXPECT_EQ(grid.TopRow(), 5);
    grid.userTurnedWheel(40, 0);
    EXPECT_EQ(grid.TopRow(), 4) << "what it had turned the other way counts no more";
    grid.userTurnedWheel(1200, 0);
    EXPECT_EQ(grid.TopRow(), 1);
    grid.userTurnedWheel(0, -120);
    EXPECT_EQ(grid.LeftCol(), 1) << "all columns are in sight";
    EXPECT_EQ(happened(), "Scroll:4,1 Scroll:5,1 Scroll:4,1 Scroll:1,1");
  });
}

TEST_F(GridMouse, DraggedBeyondTheEdgeMeansTheNextRowOutOfSight) {
  fill(100);
  grid.TopRow(20);
  happened();
  const FlexGridLayout layout = grid.layout();
  EXPECT_EQ(layout.draggedTo({10, -5}), (GridSpot{19, 0}));
  EXPECT_EQ(layout.draggedTo({10, 5000}), (GridSpot{30, 0}));
  EXPECT_EQ(layout.draggedTo({-100, 20}), (GridSpot{20, 0}));
  EXPECT_FALSE(layout.spotAt({10, -5}).inside);
}

TEST_F(GridMouse, APlaceIsSaidByItsHeadingAndItsRow) {
  EXPECT_EQ(grid.wordsForPlace(2, 3), u"0/3, Zeile 2");
  EXPECT_EQ(grid.wordsForPlace(0, 3), u"0/3");
  EXPECT_EQ(errorNumberOf([&] { static_cast<void>(grid.wordsForPlace(4, 0)); }),
            error::InvalidPropertyArrayIndex);
  grid.FixedRows(0);
  EXPECT_EQ(grid.wordsForPlace(2, 3), u"Zeile 3");
}

TEST_F(GridMouse, WithoutHeadingsEveryCellCanBeTaken) {
  grid.Rows(0);
  grid.FixedCols(0);
  fill(3);
  open([&] {
    clickCell(0, 0);
    EXPECT_EQ(selection(), "0,0-0,0");
    grid.SelectionMode(FlexGrid::ByRow);
    clickCell(2, 1);
    EXPECT_EQ(selection(), "2,0-2,4");
    happened();
  });
}

TEST_F(GridMouse, AGridWithHeadingsAloneTakesNothing) {
  grid.Rows(1);
  happened();
  open([&] {
    clickCell(0, 2);
    press(key::Down);
    EXPECT_EQ(happened(), "MouseDown1/0 on 0,2 MouseUp1");
  });
}

// ---- keys

TEST_F(GridKeys, MoveTheCursorAmongTheCells) {
  show(form, [&] {
    press(key::Down);
    EXPECT_EQ(happened(), "LeaveCell:1,1 SelChange:2,1 EnterCell:2,1 RowColChange:2,1");
    press(key::Right);
    EXPECT_EQ(selection(), "2,2-2,2");
    press(key::End);
    EXPECT_EQ(selection(), "2,4-2,4");
    press(key::Right);
    EXPECT_EQ(selection(), "2,4-2,4");
    press(key::Home);
    press(key::Up);
    press(key::Up);
    EXPECT_EQ(selection(), "1,1-1,1") << "never into the heading";
    press(key::End, shift::Ctrl);
    EXPECT_EQ(selection(), "3,4-3,4");
    press(key::Home, shift::Ctrl);
    EXPECT_EQ(selection(), "1,1-1,1");
    happened();
  });
}

TEST_F(GridKeys, SkipHiddenColumns) {
  grid.ColWidth(2, 0);
  grid.ColWidth(4, 0);
  show(form, [&] {
    press(key::Right);
    EXPECT_EQ(grid.Col(), 3);
    press(key::Right);
    EXPECT_EQ(grid.Col(), 3);
    press(key::Left);
    EXPECT_EQ(grid.Col(), 1);
    happened();
  });
}

TEST_F(GridKeys, WithShiftExtendTheSelection) {
  show(form, [&] {
    press(key::Down, shift::Shift);
    press(key::Right, shift::Shift);
    EXPECT_EQ(selection(), "1,1-2,2");
    EXPECT_EQ(happened(), "SelChange:1,1 SelChange:1,1");
    press(key::Down);
    EXPECT_EQ(selection(), "2,1-2,1");
    happened();
  });
}

TEST_F(GridKeys, TakeWholeRowsInRowMode) {
  grid.SelectionMode(FlexGrid::ByRow);
  show(form, [&] {
    press(key::Down);
    EXPECT_EQ(selection(), "2,1-2,4");
    press(key::Down, shift::Shift);
    EXPECT_EQ(selection(), "2,1-3,4");
    press(key::Home);
    EXPECT_EQ(selection(), "1,1-1,4");
    press(key::End);
    EXPECT_EQ(selection(), "3,1-3,4");
    happened();
  });
}

TEST_F(GridKeys, TurnPagesAndScrollAlong) {
  fill(100);
  show(form, [&] {
    press(key::PageDown);
    EXPECT_EQ(grid.Row(), 10);
    press(key::Down);
    EXPECT_EQ(grid.Row(), 11);
    EXPECT_EQ(grid.TopRow(), 2);
    press(key::End, shift::Ctrl);
    EXPECT_EQ(grid.TopRow(), 90);
    press(key::PageUp);
    EXPECT_EQ(grid.Row(), 90);
    happened();
  });
}

TEST_F(GridKeys, OtherThanThoseOfTheCursorHaveNoEffect) {
  grid.KeyDown = [this](int& code, int) { note("KeyDown:" + std::to_string(code)); };
  show(form, [&] {
    press(key::Delete);
    press(key::Enter);
    type(u"x");
    press(key::Down, shift::Alt);
    EXPECT_EQ(happened(), "KeyDown:46 KeyDown:13 KeyDown:88 KeyDown:40");
  });
}

}  // namespace
}  // namespace zqn::testing
