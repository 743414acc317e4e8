// SPDX-License-Identifier: MIT
//
// A grid whose events are written down with the cursor's cell, for tests. Not part of the library.
#pragma once

#include "forms/flex_grid.h"
#include "testing/forms.h"

namespace zqn::testing {

inline constexpr ControlDesign gridRoster[] = {
    // A heading, ten rows of 16 pixels, five columns of 64 pixels, a scroll bar, and a frame.
    {u"Grid", ControlKind::MSHFlexGrid, u"", 0, 0, 5300, 11 * 240 + 30},
    {u"Plain", ControlKind::MSFlexGrid, u"", 0, 3000, 2000, 1000},
    {u"btn", ControlKind::CommandButton, u"OK", 3000, 4000, 1000, 285},
};

class GridTest : public FormTest {
 protected:
  GridTest() {
    grid.Cols(5);
    fill(4);
    const auto named = [this](const char* name) {
      return [this, name] {
        note(std::string(name) + ":" + std::to_string(grid.Row()) + "," + std::to_string(grid.Col()));
      };
    };
    grid.LeaveCell = named("LeaveCell");
    grid.EnterCell = named("EnterCell");
    grid.RowColChange = named("RowColChange");
    grid.SelChange = named("SelChange");
    grid.Scroll = [this] {
      note("Scroll:" + std::to_string(grid.TopRow()) + "," + std::to_string(grid.LeftCol()));
    };
  }

  /// So many rows, each cell saying where it stands: "2/1".
  void fill(int rows) {
    grid.Rows(rows);
    for (int row = 0; row < grid.Rows(); ++row) {
      for (int col = 0; col < grid.Cols(); ++col)
        grid.TextMatrix(row, col, fromUtf8(std::to_string(row) + "/" + std::to_string(col)));
    }
    happened();
  }
  /// "row,col-rowSel,colSel".
  std::string selection() const {
    const auto corner = [](int row, int col) { return std::to_string(row) + "," + std::to_string(col); };
    return corner(grid.Row(), grid.Col()) + "-" + corner(grid.RowSel(), grid.ColSel());
  }

  SampleForm form{gridRoster};
  FlexGrid& grid = form.Get<FlexGrid>(u"Grid");
  FlexGrid& plain = form.Get<FlexGrid>(u"Plain");
};

}  // namespace zqn::testing
