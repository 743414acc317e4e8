// SPDX-License-Identifier: MIT
//
// Size, cursor, cells and places of a grid, as code uses them.
#include "forms/flex_grid.h"

#include "forms/picture_box.h"
#include "testing/flex_grid.h"

namespace zqn::testing {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

using GridSize = GridTest;
using GridCursor = GridTest;
using GridCells = GridTest;
using GridPlaces = GridTest;
using GridProperties = GridTest;

// ---- size

TEST_F(GridSize, BeginsWithTwoRowsAndTwoColumnsOneHeadingEach) {
  EXPECT_EQ(plain.Rows(), 2);
  EXPECT_EQ(plain.Cols(), 2);
  EXPECT_EQ(plain.FixedRows(), 1);
  EXPECT_EQ(plain.FixedCols(), 1);
  EXPECT_EQ(plain.Row(), 1);
  EXPECT_EQ(plain.Col(), 1);
  EXPECT_EQ(plain.SelectionMode(), FlexGrid::Free);
}

TEST_F(GridSize, GrowingKeepsTheCellsAndAppendsEmptyOnes) {
  grid.Row(2);
  grid.CellBackColor(0x00FF00);
  happened();
  grid.Rows(6);
  grid.Cols(6);
  EXPECT_EQ(grid.TextMatrix(3, 4), u"3/4");
  EXPECT_EQ(grid.cell(2, 1).backColor, 0x00FF00U);
  EXPECT_EQ(grid.TextMatrix(5, 5), u"");
  EXPECT_EQ(grid.cell(4, 1).backColor, 0U);
  EXPECT_EQ(happened(), "");
}

TEST_F(GridSize, ShrinkingDropsTheLastRowsForGood) {
  grid.Rows(2);
  grid.Rows(4);
  EXPECT_EQ(grid.TextMatrix(1, 1), u"1/1");
  EXPECT_EQ(grid.TextMatrix(3, 1), u"");
}

TEST_F(GridSize, ShrinkingMovesACursorBeyondTheEndWithItsEvents) {
  grid.Row(3);
  happened();
  grid.Rows(3);
  EXPECT_EQ(happened(), "LeaveCell:3,1 SelChange:2,1 EnterCell:2,1 RowColChange:2,1");
  grid.Row(1);
  grid.RowSel(2);
  happened();
  grid.Rows(2);
  EXPECT_EQ(happened(), "SelChange:1,1");
  EXPECT_EQ(selection(), "1,1-1,1");
}

TEST_F(GridSize, TheSameCountDoesNothing) {
  grid.Rows(4);
  grid.Cols(5);
  EXPECT_EQ(happened(), "");
}

TEST_F(GridSize, NegativeCountsFailAndChangeNothing) {
  EXPECT_EQ(errorNumberOf([&] { grid.Rows(-1); }), error::InvalidGridRow);
  EXPECT_EQ(errorNumberOf([&] { grid.Cols(-1); }), error::InvalidGridCol);
  EXPECT_EQ(grid.Rows(), 4);
  EXPECT_EQ(grid.Cols(), 5);
}

TEST_F(GridSize, WithoutRowsThereIsNoHeadingAnyMoreEvenWhenRowsComeBack) {
  grid.Rows(0);
  EXPECT_EQ(grid.FixedRows(), 0);
  EXPECT_EQ(errorNumberOf([&] { grid.Row(0); }), error::InvalidGridRow);
  EXPECT_EQ(errorNumberOf([&] { grid.Text(u"x"); }), error::InvalidPropertyArrayIndex);
  EXPECT_EQ(grid.content(), u"");
  grid.Rows(2);
  EXPECT_EQ(grid.FixedRows(), 0);
  EXPECT_EQ(grid.Row(), 0);
}

TEST_F(GridSize, GrowingTakesACursorOutOfTheHeading) {
  grid.Row(0);
  happened();
  grid.Rows(5);
  EXPECT_EQ(happened(), "LeaveCell:0,1 SelChange:1,1 EnterCell:1,1 RowColChange:1,1");
}

TEST_F(GridSize, HeadingsAreFewerThanRowsAndColumns) {
  EXPECT_EQ(errorNumberOf([&] { grid.FixedRows(4); }), error::TooManyFixed);
  EXPECT_EQ(errorNumberOf([&] { grid.FixedCols(5); }), error::TooManyFixed);
  EXPECT_EQ(errorNumberOf([&] { grid.FixedCols(-1); }), error::TooManyFixed);
  grid.FixedRows(0);
  grid.FixedCols(0);
  EXPECT_EQ(grid.TopRow(), 0);
  EXPECT_EQ(grid.LeftCol(), 0);
}

TEST_F(GridSize, AddItemPutsTextsIntoANewRow) {
  grid.AddItem(u"a\tb\tc");
  EXPECT_EQ(grid.Rows(), 5);
  EXPECT_EQ(grid.TextMatrix(4, 1), u"b");
  grid.AddItem(u"1\t2\t3\t4\t5\t6", 2);
  EXPECT_EQ(grid.TextMatrix(2, 4), u"5");
  EXPECT_EQ(grid.TextMatrix(3, 0), u"2/0");
  EXPECT_EQ(grid.TextMatrix(5, 2), u"c");
  EXPECT_EQ(errorNumberOf([&] { grid.AddItem(u"x", 0); }), error::GridRowAlreadyFixed);
  EXPECT_EQ(errorNumberOf([&] { grid.AddItem(u"x", 7); }), error::GridRowOutside);
  EXPECT_EQ(grid.Rows(), 6);
}

// ---- cursor

TEST_F(GridCursor, EachAssignmentIsAMoveOfItsOwn) {
  grid.Row(2);
  grid.Col(3);
  EXPECT_EQ(happened(),
            "LeaveCell:1,1 SelChange:2,1 EnterCell:2,1 RowColChange:2,1 "
            "LeaveCell:2,1 SelChange:2,3 EnterCell:2,3 RowColChange:2,3");
}

TEST_F(GridCursor, TheSameCellRaisesNothingOrSelChangeWhenTheSelectionWasWider) {
  grid.Row(1);
  grid.Col(1);
  EXPECT_EQ(happened(), "");
  grid.ColSel(4);
  EXPECT_EQ(happened(), "SelChange:1,1");
  grid.Col(1);
  EXPECT_EQ(happened(), "SelChange:1,1");
  EXPECT_EQ(selection(), "1,1-1,1");
}

TEST_F(GridCursor, RowAndColMakeTheCellTheWholeSelectionInEveryMode) {
  for (const int mode : {FlexGrid::Free, FlexGrid::ByRow, FlexGrid::ByColumn}) {
    grid.SelectionMode(mode);
    grid.RowSel(3);
    grid.ColSel(4);
    grid.Row(2);
    EXPECT_EQ(selection(), "2,1-2,1");
    grid.RowSel(1);
    grid.Col(3);
    EXPECT_EQ(selection(), "2,3-2,3");
    grid.Row(1);
    grid.Col(1);
  }
}

TEST_F(GridCursor, TheOtherCornerMayStandInFront) {
  grid.Row(3);
  grid.RowSel(1);
  EXPECT_EQ(selection(), "3,1-1,1");
  EXPECT_TRUE(grid.isHighlighted(2, 1));
  EXPECT_FALSE(grid.isHighlighted(2, 2));
}

TEST_F(GridCursor, HeadingsAreAllowedFromCode) {
  grid.Row(0);
  grid.Col(0);
  EXPECT_EQ(selection(), "0,0-0,0");
  grid.CellAlignment(cell_alignment::RightCenter);
  EXPECT_EQ(grid.cell(0, 0).alignment, 7);
}

TEST_F(GridCursor, OutsideItFailsAndStays) {
  for (const int outside : {-1, 4}) {
    EXPECT_EQ(errorNumberOf([&] { grid.Row(outside); }), error::InvalidGridRow);
    EXPECT_EQ(errorNumberOf([&] { grid.RowSel(outside); }), error::InvalidGridRow);
  }
  for (const int outside : {-1, 5}) {
    EXPECT_EQ(errorNumberOf([&] { grid.Col(outside); }), error::InvalidGridCol);
    EXPECT_EQ(errorNumberOf([&] { grid.ColSel(outside); }), error::InvalidGridCol);
  }
  EXPECT_EQ(selection(), "1,1-1,1");
  EXPECT_EQ(happened(), "");
}

TEST_F(GridCursor, AHandlerMayMoveItAgain) {
  grid.RowColChange = [&] {
    note("at " + std::to_string(grid.Row()));
    if (grid.Row() == 2) grid.Row(1);
  };
  grid.Row(2);
  EXPECT_EQ(happened(),
            "LeaveCell:1,1 SelChange:2,1 EnterCell:2,1 at 2 LeaveCell:2,1 SelChange:1,1 EnterCell:1,1 at 1");
  EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridCursor, ChangingTheModeMovesNothing) {
  grid.RowSel(3);
  happened();
  grid.SelectionMode(FlexGrid::ByRow);
  EXPECT_EQ(selection(), "1,1-3,1");
  EXPECT_EQ(happened(), "");
  EXPECT_EQ(errorNumberOf([&] { grid.SelectionMode(3); }), error::InvalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { grid.SelectionMode(-1); }), error::InvalidPropertyValue);
}

TEST_F(GridCursor, ASingleCellIsHighlightedOnlyWhereRowsAreTaken) {
  EXPECT_FALSE(grid.isHighlighted(1, 1));
  grid.SelectionMode(FlexGrid::ByRow);
  EXPECT_TRUE(grid.isHighlighted(1, 1));
  EXPECT_FALSE(grid.isHighlighted(1, 0));
}

// ---- cells

TEST_F(GridCells, AnyTextCanBeReachedWithoutMovingTheCursor) {
  grid.TextMatrix(3, 4, u"unten");
  EXPECT_EQ(grid.TextMatrix(3, 4), u"unten");
  EXPECT_EQ(selection(), "1,1-1,1");
  EXPECT_EQ(happened(), "");
  EXPECT_EQ(errorNumberOf([&] { grid.TextMatrix(4, 0); }), error::InvalidPropertyArrayIndex);
  EXPECT_EQ(errorNumberOf([&] { grid.TextMatrix(0, -1, u"x"); }), error::InvalidPropertyArrayIndex);
}

TEST_F(GridCells, TextAndLooksAreThoseOfTheCellAtTheCursor) {
  static constexpr Picture mark{u"mark", 14, 14, {}};
  grid.Row(2);
  grid.Col(3);
  grid.Text(u"hier");
  grid.CellPicture(&mark);
  grid.CellPictureAlignment(cell_alignment::CenterCenter);
  grid.CellForeColor(0x0000FF);
  EXPECT_EQ(grid.TextMatrix(2, 3), u"hier");
  EXPECT_EQ(grid.cell(2, 3).picture, &mark);
  EXPECT_EQ(grid.cell(2, 3).pictureAlignment, 4);
  EXPECT_EQ(grid.cell(2, 3).foreColor, 0x0000FFU);
  EXPECT_EQ(grid.Property(u"CellForeColor"), Variant(255.0));
  EXPECT_EQ(grid.cell(2, 2).picture, nullptr);
  EXPECT_EQ(grid.content(), u"hier");
}

TEST_F(GridCells, APictureBoxKeepsAPicture) {
  static constexpr ControlDesign roster[] = {
      {u"pic", ControlKind::PictureBox, u"", 0, 0, 210, 210, {.Visible = false}}};
  static constexpr Picture mark{u"mark", 14, 14, {}};
  SampleForm pictures{roster};
  auto& pic = pictures.Get<PictureBox>(u"pic");
  EXPECT_EQ(pic.Property(u"Picture"), Variant(u""));
  pic.Picture(&mark);
  EXPECT_EQ(pic.Picture(), &mark);
  EXPECT_EQ(pic.Property(u"Picture"), Variant(u"mark"));
  EXPECT_FALSE(pic.takesFocus());
}

// ---- places

TEST_F(GridPlaces, CellsStandBehindTheColumnsAndRowsBeforeThem) {
  grid.ColWidth(0, 300);
  grid.ColWidth(1, 1000);
  grid.Row(2);
  grid.Col(2);
  EXPECT_EQ(grid.CellLeft(), 87 * 15) << "1300 twips are 86.67 pixels";
  EXPECT_EQ(grid.CellTop(), 480);
  EXPECT_EQ(grid.CellHeight(), 240);
  EXPECT_EQ(grid.CellWidth(), 960);
  grid.ColWidth(2, 0);
  EXPECT_EQ(grid.CellWidth(), 0);
  EXPECT_EQ(grid.ColWidth(2), 0);
  grid.ColWidth(2, -1);
  EXPECT_EQ(grid.ColWidth(2), 960);
  EXPECT_EQ(errorNumberOf([&] { grid.ColWidth(5); }), error::InvalidGridCol);
  EXPECT_EQ(errorNumberOf([&] { grid.RowHeight(4, 300); }), error::InvalidGridRow);
}

TEST_F(GridPlaces, ARowMayBeHigherOrHidden) {
  grid.RowHeight(1, 480);
  grid.RowHeight(2, 0);
  grid.Row(3);
  EXPECT_EQ(grid.CellTop(), 720);
  EXPECT_EQ(grid.layout().rows().size(), 3U);
  grid.RowHeight(1, -1);
  EXPECT_EQ(grid.CellTop(), 480);
}

TEST_F(GridPlaces, ColumnsThatFitInTwipsFitInPixels) {
  // Each width for itself would be rounded up to 70 pixels, and 350 do not fit into 349.
  grid.Width(5 * 1048 + 30);
  for (int col = 0; col < 5; ++col) grid.ColWidth(col, 1048);
  for (const double twipsPerPixel : {15.0, 12.0, 10.0, 7.5}) {
    EXPECT_FALSE(grid.layout(twipsPerPixel, twipsPerPixel).hasHorizontalBar()) << twipsPerPixel;
  }
  grid.ColWidth(4, 1200);
  EXPECT_TRUE(grid.layout().hasHorizontalBar());
}

TEST_F(GridPlaces, RowsThatFitNeedNoBar) {
  fill(11);
  EXPECT_FALSE(grid.layout().hasVerticalBar());
  EXPECT_EQ(grid.layout().clientWidth(), 351);
  fill(12);
  EXPECT_TRUE(grid.layout().hasVerticalBar());
  EXPECT_EQ(grid.layout().clientWidth(), 351 - 16);
  EXPECT_EQ(grid.layout().lastTopRow(), 2);
}

TEST_F(GridPlaces, ASingleColumnThatIsTooWideNeedsNoBar) {
  plain.Rows(0);
  plain.Cols(1);
  plain.FixedCols(0);
  plain.ColWidth(0, plain.Width());
  plain.Rows(3);
  EXPECT_FALSE(plain.layout().hasHorizontalBar());
  EXPECT_FALSE(plain.layout().hasVerticalBar());
  ASSERT_THAT(plain.layout().rows(), SizeIs(3));
  EXPECT_EQ(plain.layout().rows()[0].start, 0) << "no heading takes room";
}

TEST_F(GridPlaces, MovingByCodeDoesNotScrollButReadingThePlaceDoes) {
  fill(100);
  grid.Row(50);
  EXPECT_EQ(grid.TopRow(), 1);
  EXPECT_FALSE(grid.RowIsVisible(50));
  happened();
  EXPECT_EQ(grid.CellTop(), 10 * 240) << "the last row that is in sight as a whole";
  EXPECT_EQ(happened(), "Scroll:41,1");
  EXPECT_TRUE(grid.RowIsVisible(50));
  EXPECT_TRUE(grid.RowIsVisible(0));
  EXPECT_FALSE(grid.RowIsVisible(40));
  grid.Row(7);
  EXPECT_EQ(grid.CellTop(), 240);
  EXPECT_EQ(grid.TopRow(), 7);
  EXPECT_EQ(errorNumberOf([&] { grid.RowIsVisible(100); }), error::InvalidGridRow);
  EXPECT_EQ(errorNumberOf([&] { grid.RowIsVisible(-1); }), error::InvalidGridRow);
}

TEST_F(GridPlaces, TooLargeATopRowIsTheLargest) {
  fill(100);
  grid.TopRow(99);
  EXPECT_EQ(grid.TopRow(), 90);
  EXPECT_EQ(happened(), "Scroll:90,1");
  grid.TopRow(0);
  EXPECT_EQ(grid.TopRow(), 1);
  EXPECT_EQ(errorNumberOf([&] { grid.TopRow(-1); }), error::InvalidGridRow);
  EXPECT_EQ(errorNumberOf([&] { grid.LeftCol(-1); }), error::InvalidGridCol);
  grid.TopRow(99);
  happened();
  grid.Rows(20);
  EXPECT_EQ(happened(), "Scroll:10,1") << "the rows reach to the lower edge again";
}

TEST_F(GridPlaces, ManyColumnsScrollSideways) {
  grid.Cols(20);
  grid.LeftCol(30);
  EXPECT_EQ(grid.LeftCol(), 16);
  grid.Col(10);
  EXPECT_EQ(grid.CellLeft(), 960);
  EXPECT_EQ(grid.LeftCol(), 10);
  EXPECT_EQ(grid.layout().spotAt({70, 20}).col, 10);
}

TEST_F(GridPlaces, APlaceBesideTheCellsIsNoCell) {
  const FlexGridLayout layout = grid.layout();
  EXPECT_EQ(layout.spotAt({0, 0}).row, 0);
  EXPECT_EQ(layout.spotAt({0, 0}).col, 0);
  EXPECT_EQ(layout.spotAt({64, 16}).row, 1);
  EXPECT_EQ(layout.spotAt({63, 16}).col, 0);
  EXPECT_EQ(layout.spotAt({10, 4 * 16}).row, -1);
  EXPECT_EQ(layout.spotAt({5 * 64, 20}).col, -1);
  EXPECT_EQ(layout.spotAt({-1, 20}).row, -1);
  EXPECT_EQ(layout.spotAt({10, 10'000}).col, -1);
}

// ---- automation

TEST_F(GridProperties, AreReachedByName) {
  static constexpr Picture mark{u"picNew", 14, 14, {}};
  grid.Row(2);
  grid.Col(0);
  grid.CellPicture(&mark);
  EXPECT_EQ(grid.Property(u"textmatrix(1, 2)"), Variant(u"1/2"));
  EXPECT_EQ(grid.Property(u"CellPicture(2)"), Variant(u"picNew"));
  EXPECT_EQ(grid.Property(u"CellPicture(1)"), Variant(u""));
  EXPECT_EQ(grid.Property(u"ColWidth(1)"), Variant(std::int32_t{960}));
  EXPECT_EQ(grid.Property(u"RowHeight(1)"), Variant(std::int32_t{240}));
  EXPECT_EQ(grid.Property(u"Text"), Variant(u"2/0"));
  grid.Property(u"Rows", Variant(std::int32_t{3}));
  EXPECT_EQ(grid.Property(u"Rows"), Variant(std::int32_t{3}));
  EXPECT_EQ(errorNumberOf([&] { grid.Property(u"TextMatrix(9,9)"); }), error::InvalidPropertyArrayIndex);
  EXPECT_EQ(errorNumberOf([&] { grid.Property(u"TextMatrix(1)"); }), error::NoSuchMember);
  EXPECT_EQ(errorNumberOf([&] { grid.Property(u"Nichts"); }), error::NoSuchMember);
}

}  // namespace
}  // namespace zqn::testing
