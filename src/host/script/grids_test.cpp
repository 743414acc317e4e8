// SPDX-License-Identifier: MIT
//
// What a script does to a grid, and reads of it.
#include "forms/flex_grid.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

constexpr ControlDesign roster[] = {
    {u"txt", ControlKind::TextBox, u"", 60, 3000, 800, 285},
    {u"MSHFlexGrid1", ControlKind::MSHFlexGrid, u"", 60, 60, 4000, 2430},
};
constexpr FormDesign design{u"frmGrid", u"Gitter", 4200, 3500, roster};

/// Three data rows, each cell saying where it stands; the last column is hidden.
class frmGrid : public Form {
 public:
  frmGrid() : Form(design) {
    Grid.Cols(4);
    Grid.ColWidth(3, 0);
    fill(4);
  }
  void fill(int rows) {
    Grid.Rows(rows);
    for (int row = 0; row < rows; ++row) {
      for (int col = 0; col < 4; ++col)
        Grid.TextMatrix(row, col, fromUtf8(std::to_string(row) + "/" + std::to_string(col)));
    }
  }
  MSHFlexGrid& Grid = Get<MSHFlexGrid>(u"MSHFlexGrid1");
};

class GridScript : public ScriptTest {
 protected:
  /// The lines without `shown` and `closed`.
  Lines on(const std::string& script) {
    Lines lines = run(script, [this] { grid.Show(); });
    EXPECT_GE(lines.size(), 2U);
    return {lines.begin() + 1, lines.end() - 1};
  }
  void watch() {
    const auto at = [this] {
      return std::to_string(grid.Grid.MouseRow()) + "," + std::to_string(grid.Grid.MouseCol());
    };
    grid.Grid.MouseDown = [=, this](int button, int) {
      events.push_back("down" + std::to_string(button) + " " + at());
    };
    grid.Grid.MouseUp = [=, this](int button, int) {
      events.push_back("up" + std::to_string(button) + " " + at());
    };
    grid.Grid.Click = [this] { events.push_back("click"); };
    grid.Grid.DblClick = [this] { events.push_back("double"); };
    grid.Grid.Scroll = [this] { events.push_back("scroll " + std::to_string(grid.Grid.TopRow())); };
  }

  frmGrid grid;
  Lines events;
};

TEST_F(GridScript, ListShowsTheHeadingsAndTheRowsBelow) {
  EXPECT_THAT(
      on(R"~({"list":"MSHFlexGrid1"}
            {"get":["MSHFlexGrid1.TextMatrix(1,2)","MSHFlexGrid1.Rows","MSHFlexGrid1.CellPicture(1)"]})~"),
      ElementsAre(
          R"({"list":"MSHFlexGrid1","columns":["0/0","0/1","0/2"],"rows":[["1/0","1/1","1/2"],["2/0","2/1","2/2"],["3/0","3/1","3/2"]],"row":1})",
          R"~({"values":{"MSHFlexGrid1.TextMatrix(1,2)":"1/2","MSHFlexGrid1.Rows":4,"MSHFlexGrid1.CellPicture(1)":""}})~"));
}

TEST_F(GridScript, AGridWithoutHeadingHasNoColumnsInAList) {
  grid.Grid.FixedRows(0);
  grid.Grid.Rows(1);
  EXPECT_THAT(on(R"({"list":"MSHFlexGrid1"})"),
              ElementsAre(R"({"list":"MSHFlexGrid1","columns":[],"rows":[["0/0","0/1","0/2"]],"row":0})"));
}

TEST_F(GridScript, MouseClicksACellWithEitherButton) {
  watch();
  EXPECT_THAT(
      on(R"({"mouse":"MSHFlexGrid1","row":2,"col":1,"button":1,"event":"click"}
            {"get":["MSHFlexGrid1.Row","MSHFlexGrid1.Col","Form.ActiveControl"]}
            {"mouse":"MSHFlexGrid1","row":3,"col":2,"button":2,"event":"click"}
            {"get":["MSHFlexGrid1.Row"]})"),
      ElementsAre(
          R"({"values":{"MSHFlexGrid1.Row":2,"MSHFlexGrid1.Col":1,"Form.ActiveControl":"MSHFlexGrid1"}})",
          R"({"values":{"MSHFlexGrid1.Row":2}})"));
  EXPECT_THAT(events, ElementsAre("down1 2,1", "up1 2,1", "click", "down2 3,2", "up2 3,2"));
}

TEST_F(GridScript, MousePressesAndReleasesApart) {
  watch();
  on(R"({"mouse":"MSHFlexGrid1","row":1,"col":1,"event":"down"}
        {"mouse":"MSHFlexGrid1","row":1,"col":2,"event":"up"}
        {"mouse":"MSHFlexGrid1","row":2,"col":1,"event":"dblclick"})");
  EXPECT_THAT(events, ElementsAre("down1 1,1", "up1 1,2", "click", "down1 2,1", "up1 2,1", "click",
                                  "down1 2,1", "double", "up1 2,1"));
}

TEST_F(GridScript, ADoubleClickIsTwoPressesWithEitherButton) {
  watch();
  on(R"({"mouse":"MSHFlexGrid1","row":2,"col":1,"button":2,"event":"dblclick"})");
  EXPECT_THAT(events, ElementsAre("down2 2,1", "up2 2,1", "down2 2,1", "up2 2,1"));
}

TEST_F(GridScript, AReleaseWithoutAPressIsNone) {
  watch();
  EXPECT_THAT(
      on(R"({"mouse":"MSHFlexGrid1","row":2,"col":1,"event":"up"}
                    {"mouse":"MSHFlexGrid1","row":2,"col":1,"button":2,"event":"up"}
                    {"mouse":"MSHFlexGrid1","row":2,"col":1,"button":2,"event":"down"}
                    {"mouse":"MSHFlexGrid1","row":2,"col":1,"button":1,"event":"up"}
                    {"get":["Form.ActiveControl","MSHFlexGrid1.Row","MSHFlexGrid1.MouseRow"]})"),
      ElementsAre(
          R"({"values":{"Form.ActiveControl":"MSHFlexGrid1","MSHFlexGrid1.Row":1,"MSHFlexGrid1.MouseRow":2}})"));
  EXPECT_THAT(events, ElementsAre("down2 2,1"));
}

TEST_F(GridScript, ShiftExtendsTheSelectionAndIsTold) {
  int held = 0;
  grid.Grid.MouseUp = [&](int, int shift) { held += shift; };
  EXPECT_THAT(
      on(R"({"mouse":"MSHFlexGrid1","row":1,"col":1}
            {"mouse":"MSHFlexGrid1","row":3,"col":2,"shift":1}
            {"get":["MSHFlexGrid1.Row","MSHFlexGrid1.RowSel","MSHFlexGrid1.ColSel"]})"),
      ElementsAre(R"({"values":{"MSHFlexGrid1.Row":1,"MSHFlexGrid1.RowSel":3,"MSHFlexGrid1.ColSel":2}})"));
  EXPECT_EQ(held, 1);
}

TEST_F(GridScript, APressOnARowThatTheEdgeCutsMeansThatRowThroughout) {
  grid.fill(100);
  grid.Grid.Height(11 * 240 + 30 + 120);
  watch();
  on(R"({"mouse":"MSHFlexGrid1","row":11,"col":1,"event":"dblclick"})");
  EXPECT_THAT(events,
              ElementsAre("scroll 2", "down1 11,1", "up1 11,1", "click", "down1 11,1", "double", "up1 11,1"));
}

TEST_F(GridScript, DragExtendsTheSelection) {
  EXPECT_THAT(
      on(R"({"drag":"MSHFlexGrid1","from":[1,0],"to":[3,0]}
            {"get":["MSHFlexGrid1.Row","MSHFlexGrid1.RowSel","MSHFlexGrid1.ColSel"]})"),
      ElementsAre(R"({"values":{"MSHFlexGrid1.Row":1,"MSHFlexGrid1.RowSel":3,"MSHFlexGrid1.ColSel":3}})"));
}

TEST_F(GridScript, RowsOutOfSightAreScrolledIntoView) {
  grid.fill(100);
  watch();
  EXPECT_THAT(on(R"({"mouse":"MSHFlexGrid1","row":50,"col":1,"event":"click"}
                    {"drag":"MSHFlexGrid1","from":[48,0],"to":[70,0]}
                    {"get":["MSHFlexGrid1.RowSel"]})"),
              ElementsAre(R"({"values":{"MSHFlexGrid1.RowSel":70}})"));
  EXPECT_THAT(events, ElementsAre("scroll 42", "down1 50,1", "up1 50,1", "click", "down1 48,0", "scroll 62",
                                  "up1 70,0", "click"));
}

TEST_F(GridScript, BesideTheCellsIsAPlaceWhereThereIsRoom) {
  watch();
  EXPECT_THAT(on(R"({"mouse":"MSHFlexGrid1","row":-1,"col":1,"event":"click"}
            {"mouse":"MSHFlexGrid1","row":1,"col":-1,"event":"click"})"),
              IsEmpty());
  EXPECT_THAT(events, ElementsAre("down1 -1,1", "up1 -1,1", "click", "down1 1,-1", "up1 1,-1", "click"));
}

TEST_F(GridScript, PlacesThatNobodyCanPointAtAreRefused) {
  grid.fill(100);
  EXPECT_THAT(
      on(R"({"mouse":"MSHFlexGrid1","row":100,"col":1,"event":"click"}
            {"mouse":"MSHFlexGrid1","row":1,"col":4,"event":"click"}
            {"mouse":"MSHFlexGrid1","row":1,"col":3,"event":"click"}
            {"mouse":"MSHFlexGrid1","row":-1,"col":1,"event":"click"}
            {"drag":"MSHFlexGrid1","from":[1,0],"to":[-2,0]}
            {"mouse":"txt","row":1,"col":1,"event":"click"})"),
      ElementsAre(HasSubstr("MSHFlexGrid1 has no row 100"), HasSubstr("MSHFlexGrid1 has no column 4"),
                  HasSubstr("column 3 of MSHFlexGrid1 is hidden"),
                  HasSubstr("MSHFlexGrid1 shows no place beside its cells"),
                  HasSubstr("MSHFlexGrid1 has no row -2"), HasSubstr("txt is a TextBox, which is no grid")));
}

TEST_F(GridScript, UnknownEventsAndCellsEndTheScript) {
  const auto errorOf = [this](const std::string& line) {
    const Lines lines = run(line, [this] { grid.Show(); });
    EXPECT_TRUE(failed) << line;
    return lines.back();
  };
  EXPECT_THAT(errorOf(R"({"mouse":"MSHFlexGrid1","row":1,"col":1,"event":"kick"})"),
              HasSubstr(R"(unknown event \"kick\"; there is down, up, click, dblclick)"));
  EXPECT_THAT(errorOf(R"({"mouse":"MSHFlexGrid1","row":1,"col":1,"button":3})"),
              HasSubstr(R"(\"button\" must be a whole number from 1 to 2)"));
  EXPECT_THAT(errorOf(R"({"mouse":"MSHFlexGrid1","row":1,"col":1,"shift":8})"),
              HasSubstr(R"(\"shift\" must be a whole number from 0 to 7)"));
  for (const char* property : {"TextMatrix(4,1)", "TextMatrix(1,-1)", "TextMatrix(1,99999999999)",
                               "CellPicture(4)", "ColWidth(4)", "RowHeight(-1)", "TextMatrix(1,x)"}) {
    EXPECT_THAT(errorOf(R"({"get":["MSHFlexGrid1.)" + std::string(property) + "\"]}"),
                HasSubstr("MSHFlexGrid1." + std::string(property) + " cannot be read"))
        << property;
  }
  for (const char* cell : {"7", "[1]", "[1,0,0]", "[1,0.5]", R"(["1",0])", "[4294967297,0]"}) {
    EXPECT_THAT(errorOf(R"({"drag":"MSHFlexGrid1","from":)" + std::string(cell) + R"(,"to":[3,0]})"),
                HasSubstr(R"(\"from\" must be [row, column])"))
        << cell;
  }
}

TEST_F(GridScript, RowsAreClickedAsThoseOfAList) {
  watch();
  on(R"({"select":"MSHFlexGrid1","row":3}
        {"dblclick":"MSHFlexGrid1","row":2}
        {"click":"MSHFlexGrid1"})");
  EXPECT_THAT(events, ElementsAre("down1 3,1", "up1 3,1", "click", "down1 2,1", "up1 2,1", "click",
                                  "down1 2,1", "double", "up1 2,1", "down1 2,1", "up1 2,1", "click"));
}

}  // namespace
}  // namespace zqn::script
