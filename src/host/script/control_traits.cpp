// SPDX-License-Identifier: MIT
#include "host/script/control_traits.h"

#include <algorithm>
#include <stdexcept>

#include "forms/combo_box.h"
#include "forms/control_kinds.h"
#include "forms/flex_grid.h"
#include "forms/list_box.h"
#include "forms/tdb_list.h"
#include "forms/zq_combo.h"
#include "runtime/enumeration_table.h"

namespace zqn::script {

namespace {

/// Rows that are made known in one go.
constexpr int fetchStep = 1000;

TDBList& listOf(Control& control) { return dynamic_cast<TDBList&>(control); }

Json listContents(Control& control) {
  TDBList& list = listOf(control);
  while (!list.rowsComplete()) list.fetchRows(fetchStep);
  Json columns = Json::array();
  std::vector<int> shown;
  for (int i = 0; i < list.columnCount(); ++i) {
    const TDBList::Column& column = list.Columns(i);
    if (!column.Visible() || column.Width() <= 0) continue;
    shown.push_back(i);
    columns.push_back(jsonText(column.Caption()));
  }
  Json rows = Json::array();
  for (int row = 0; row < list.knownRows(); ++row) {
    const std::vector<String> now = list.rowTextsNow(row);
    Json texts = Json::array();
    for (const int column : shown)
      texts.push_back(jsonText(now.empty() ? String() : now.at(static_cast<std::size_t>(column))));
    rows.push_back(std::move(texts));
  }
  return {{"columns", std::move(columns)}, {"rows", std::move(rows)}, {"row", list.Row()}};
}

bool listHasRow(Control& control, int row) {
  TDBList& list = listOf(control);
  while (row >= list.knownRows() && !list.rowsComplete()) list.fetchRows(fetchStep);
  return row >= 0 && row < list.knownRows();
}

int listMarkedRow(const Control& control) { return dynamic_cast<const TDBList&>(control).Row(); }

constexpr RowAccess listRows{listContents, listHasRow, listMarkedRow, false, nullptr};

// ---- drop-downs

const DropDown& dropDownOf(const Control& control) { return dynamic_cast<const DropDown&>(control); }

bool dropDownHasRow(Control& control, int row) { return row >= 0 && row < dropDownOf(control).ListCount(); }

int dropDownMarkedRow(const Control& control) { return dropDownOf(control).ListIndex(); }

Json dropDownContents(const DropDown& drop, Json (*rowOf)(const DropDown&, int)) {
  Json rows = Json::array();
  for (int i = 0; i < drop.ListCount(); ++i) rows.push_back(rowOf(drop, i));
  return {{"columns", Json::array()}, {"rows", std::move(rows)}, {"row", drop.ListIndex()}};
}

int rowOfText(const DropDown& drop, StringView text, const String& (*textOf)(const DropDown&, int)) {
  for (int i = 0; i < drop.ListCount(); ++i) {
    if (textOf(drop, i) == text) return i;
  }
  return -1;
}

Json comboContents(Control& control) {
  return dropDownContents(dropDownOf(control), [](const DropDown& combo, int row) {
    return Json::array({jsonText(combo.List(row))});
  });
}

int comboRowOfText(Control& control, StringView text) {
  return rowOfText(dropDownOf(control), text,
                   [](const DropDown& combo, int row) -> const String& { return combo.List(row); });
}

constexpr RowAccess comboRows{comboContents, dropDownHasRow, dropDownMarkedRow, true, comboRowOfText};

/// As it would be if somebody opened the list now.
const zqCombo& opened(Control& control) {
  auto& combo = dynamic_cast<zqCombo&>(control);
  combo.readEntries();
  return combo;
}

const zqCombo& zqComboOf(const DropDown& drop) { return dynamic_cast<const zqCombo&>(drop); }

Json zqComboContents(Control& control) {
  return dropDownContents(opened(control), [](const DropDown& drop, int row) {
    return Json::array({jsonText(zqComboOf(drop).keyOf(row)), jsonText(zqComboOf(drop).textOf(row))});
  });
}

bool zqComboHasRow(Control& control, int row) { return row >= 0 && row < opened(control).ListCount(); }

int zqComboRowOfKey(Control& control, StringView key) {
  return rowOfText(opened(control), key,
                   [](const DropDown& drop, int row) -> const String& { return zqComboOf(drop).keyOf(row); });
}

constexpr RowAccess zqComboRows{zqComboContents, zqComboHasRow, dropDownMarkedRow, true, zqComboRowOfKey};

Json gridRow(const FlexGrid& grid, int row) {
  Json texts = Json::array();
  for (int col = 0; col < grid.Cols(); ++col) {
    if (grid.ColWidth(col) > 0) texts.push_back(jsonText(grid.TextMatrix(row, col)));
  }
  return texts;
}

/// The first row of headings as columns, and all rows that are none.
Json gridContents(Control& control) {
  const auto& grid = dynamic_cast<const FlexGrid&>(control);
  Json rows = Json::array();
  for (int row = grid.FixedRows(); row < grid.Rows(); ++row) rows.push_back(gridRow(grid, row));
  Json columns = grid.FixedRows() > 0 ? gridRow(grid, 0) : Json::array();
  return {{"columns", std::move(columns)}, {"rows", std::move(rows)}, {"row", grid.Row()}};
}

bool gridHasRow(Control& control, int row) {
  return row >= 0 && row < dynamic_cast<const FlexGrid&>(control).Rows();
}

int gridMarkedRow(const Control& control) {
  const auto& grid = dynamic_cast<const FlexGrid&>(control);
  return grid.Row() < grid.Rows() ? grid.Row() : -1;
}

constexpr RowAccess gridRows{gridContents, gridHasRow, gridMarkedRow, false, nullptr};

Json listBoxContents(Control& control) {
  const auto& list = dynamic_cast<const ListBox&>(control);
  Json rows = Json::array();
  for (int i = 0; i < list.ListCount(); ++i) rows.push_back(Json::array({jsonText(list.List(i))}));
  return {{"columns", Json::array()}, {"rows", std::move(rows)}, {"row", list.ListIndex()}};
}

bool listBoxHasRow(Control& control, int row) {
  return row >= 0 && row < dynamic_cast<ListBox&>(control).ListCount();
}

int listBoxMarkedRow(const Control& control) { return dynamic_cast<const ListBox&>(control).ListIndex(); }

constexpr RowAccess listBoxRows{listBoxContents, listBoxHasRow, listBoxMarkedRow, false, nullptr};

constexpr ControlTraits traits[] = {
    {ControlKind::CheckBox, "caption", false, nullptr},
    {ControlKind::ComboBox, "text", true, &comboRows},
    {ControlKind::CommandButton, "caption", false, nullptr},
    {ControlKind::DateInput, "text", true, nullptr},
    {ControlKind::Frame, "caption", false, nullptr},
    {ControlKind::ImageList, nullptr, false, nullptr},
    {ControlKind::Label, "caption", false, nullptr},
    {ControlKind::MSFlexGrid, "text", true, &gridRows},
    {ControlKind::MSHFlexGrid, "text", true, &gridRows},
    {ControlKind::PictureBox, "text", false, nullptr},
    {ControlKind::ListBox, "text", true, &listBoxRows},
    {ControlKind::Menu, "caption", false, nullptr},
    {ControlKind::OptionButton, "caption", false, nullptr},
    {ControlKind::Shape, nullptr, false, nullptr},
    {ControlKind::TDBDate, "text", true, nullptr},
    {ControlKind::TDBList, "text", true, &listRows},
    {ControlKind::TDBNumber, "text", true, nullptr},
    {ControlKind::TextBox, "text", true, nullptr},
    {ControlKind::Timer, nullptr, false, nullptr},
    {ControlKind::ToggleButton, "caption", false, nullptr},
    {ControlKind::zqCombo, "text", true, &zqComboRows},
};
static_assert(hasRowForEach<ControlKind::zqCombo>(traits, &ControlTraits::kind));

}  // namespace

const ControlTraits& traitsOf(const Control& control) {
  const auto found = std::ranges::find(traits, control.kind(), &ControlTraits::kind);
  if (found == std::end(traits)) throw std::logic_error("no traits for a " + kindOf(control));
  return *found;
}

std::string kindOf(const Control& control) { return toUtf8(kindName(control.kind())); }

std::string nameOf(const Control& control) { return toUtf8(control.fullName()); }

}  // namespace zqn::script
