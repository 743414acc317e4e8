// SPDX-License-Identifier: MIT
#include "host/script/control_kinds.h"

#include <algorithm>
#include <stdexcept>

#include "forms/combo_box.h"
#include "forms/tdb_list.h"

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
    Json texts = Json::array();
    for (const int column : shown) texts.push_back(jsonText(list.cellText(row, column)));
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

ComboBox& comboOf(Control& control) { return dynamic_cast<ComboBox&>(control); }

Json comboContents(Control& control) {
  const ComboBox& combo = comboOf(control);
  Json rows = Json::array();
  for (int i = 0; i < combo.ListCount(); ++i) rows.push_back(Json::array({jsonText(combo.List(i))}));
  return {{"columns", Json::array()}, {"rows", std::move(rows)}, {"row", combo.ListIndex()}};
}

bool comboHasRow(Control& control, int row) { return row >= 0 && row < comboOf(control).ListCount(); }

int comboMarkedRow(const Control& control) { return dynamic_cast<const ComboBox&>(control).ListIndex(); }

int comboRowOfText(Control& control, StringView text) {
  const ComboBox& combo = comboOf(control);
  for (int i = 0; i < combo.ListCount(); ++i) {
    if (combo.List(i) == text) return i;
  }
  return -1;
}

constexpr RowAccess comboRows{comboContents, comboHasRow, comboMarkedRow, true, comboRowOfText};

constexpr ControlTraits traits[] = {
    {ControlKind::CheckBox, "caption", false, nullptr},
    {ControlKind::ComboBox, "text", true, &comboRows},
    {ControlKind::CommandButton, "caption", false, nullptr},
    {ControlKind::Frame, "caption", false, nullptr},
    {ControlKind::Label, "caption", false, nullptr},
    {ControlKind::TDBDate, "text", true, nullptr},
    {ControlKind::TDBList, "text", true, &listRows},
    {ControlKind::TDBNumber, "text", true, nullptr},
    {ControlKind::TextBox, "text", true, nullptr},
    {ControlKind::ToggleButton, "caption", false, nullptr},
};

}  // namespace

const ControlTraits& traitsOf(const Control& control) {
  const auto found = std::ranges::find(traits, control.kind(), &ControlTraits::kind);
  if (found == std::end(traits)) throw std::logic_error("no traits for a " + kindOf(control));
  return *found;
}

std::string kindOf(const Control& control) { return toUtf8(kindName(control.kind())); }

std::string nameOf(const Control& control) { return toUtf8(control.fullName()); }

}  // namespace zqn::script
