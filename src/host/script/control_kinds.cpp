// SPDX-License-Identifier: MIT
#include "host/script/control_kinds.h"

#include <algorithm>
#include <stdexcept>

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

constexpr RowAccess listRows{listContents, listHasRow, listMarkedRow};

constexpr ControlTraits traits[] = {
    {ControlKind::TextBox, "text", true, nullptr},
    {ControlKind::Label, "caption", false, nullptr},
    {ControlKind::CommandButton, "caption", false, nullptr},
    {ControlKind::CheckBox, "caption", false, nullptr},
    {ControlKind::TDBList, "text", true, &listRows},
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
