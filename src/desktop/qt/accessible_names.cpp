// SPDX-License-Identifier: MIT
#include "desktop/qt/accessible_names.h"

#include <algorithm>
#include <limits>

#include "desktop/qt/text.h"
#include "forms/day_entry.h"
#include "forms/flex_grid.h"
#include "forms/form.h"

namespace zqn::qt {

namespace {

/// A label further away than this many twips says nothing about a field.
constexpr int reachLeft = 600;
constexpr int reachAbove = 300;
/// A box to tick belongs to the drop-down right below it.
constexpr int reachAboveOfBox = 60;
constexpr int farAway = std::numeric_limits<int>::max();

bool meet(int start, int length, int otherStart, int otherLength) {
  return start < otherStart + otherLength && otherStart < start + length;
}

bool isDropDown(const Control& control) {
  return control.kind() == ControlKind::ComboBox || control.kind() == ControlKind::zqCombo;
}

/// "Status auf" [entry]: a box to tick in front of a drop-down says what is chosen there.
bool mayExplain(const Control& words, const Control& control) {
  if (words.container() != control.container() || !words.Visible() || words.content().empty()) return false;
  return words.kind() == ControlKind::Label ||
         (isDropDown(control) &&
          (words.kind() == ControlKind::CheckBox || words.kind() == ControlKind::OptionButton));
}

/// How far the words stand from the control that they may explain, in twips; a label above counts as further
/// away than any to the left. Labels reach a little into their field in some designs.
int distance(const Control& words, const Control& control) {
  const int left = control.Left() - (words.Left() + words.Width());
  if (words.Left() < control.Left() && left <= reachLeft &&
      meet(words.Top(), words.Height(), control.Top() + control.Height() / 4, control.Height() / 2))
    return std::max(left, 0);
  const int above = control.Top() - (words.Top() + words.Height());
  const int reach = words.kind() == ControlKind::Label ? reachAbove : reachAboveOfBox;
  if (words.Top() < control.Top() && above <= reach &&
      meet(words.Left(), words.Width(), control.Left(), control.Width()))
    return reachLeft + std::max(above, 0) + std::abs(control.Left() - words.Left());
  return farAway;
}

QString labelFor(const Control& control) {
  QString nearest;
  int least = farAway;
  for (const auto& each : control.form().controls()) {
    if (each.get() == &control || !mayExplain(*each, control)) continue;
    const int away = distance(*each, control);
    if (away >= least) continue;
    least = away;
    nearest = toQt(each->content());
  }
  return nearest;
}

bool encloses(const Control& frame, const Control& control) {
  return frame.Left() <= control.Left() && frame.Top() <= control.Top() &&
         frame.Left() + frame.Width() >= control.Left() + control.Width() &&
         frame.Top() + frame.Height() >= control.Top() + control.Height();
}

/// The heading of the frame around a list or drop-down that no label explains.
QString frameAround(const Control& control) {
  if (!isDropDown(control) && control.kind() != ControlKind::ListBox) return {};
  for (const auto& each : control.form().controls()) {
    const bool frame = each->kind() == ControlKind::Frame && each->Visible();
    const bool around = each.get() == control.container() ||
                        (each->container() == control.container() && encloses(*each, control));
    if (frame && around) return toQt(each->content());
  }
  return {};
}

/// A number has its unit behind it, and the words to its left may stand in front of another number of the
/// same line: "1:" [14] "Tage" [2,00] "%".
constexpr int reachUnit = 150;

bool onOneLine(const Control& one, const Control& other) {
  return one.container() == other.container() && one.Visible() && other.Visible() &&
         meet(one.Top(), one.Height(), other.Top(), other.Height());
}

int gap(const Control& left, const Control& right) { return right.Left() - (left.Left() + left.Width()); }

bool isUnitOf(const Control& label, const Control& field) {
  return field.takesFocus() && onOneLine(label, field) && gap(field, label) >= 0 &&
         gap(field, label) <= reachUnit;
}

QString nameOfNumber(const Control& number) {
  QString words;
  QString unit;
  int least = farAway;
  const auto& all = number.form().controls();
  for (const auto& each : all) {
    if (each->kind() != ControlKind::Label || !onOneLine(*each, number)) continue;
    if (isUnitOf(*each, number)) unit = toQt(each->content());
    const int left = gap(*each, number);
    const bool ofOther = std::ranges::any_of(all, [&](const auto& other) { return isUnitOf(*each, *other); });
    if (left < 0 || left >= least || ofOther) continue;
    least = left;
    words = toQt(each->content());
  }
  return words + QLatin1Char(' ') + unit;
}

QString nameByWords(const Control& control) {
  switch (control.kind()) {
    case ControlKind::TDBDate:
      return toQt(static_cast<const DayEntry&>(control).Caption());
    case ControlKind::TDBNumber:
      return nameOfNumber(control);
    default:
      return labelFor(control);
  }
}

/// What a grid is called, and where the field stands that a form lays over its cells.
String nameByGrid(const Control& control) {
  if (const auto* grid = dynamic_cast<const zqn::FlexGrid*>(&control)) return grid->AccessibleName();
  for (const auto& each : control.form().controls()) {
    const auto* grid = dynamic_cast<const zqn::FlexGrid*>(each.get());
    if (grid != nullptr && grid->Editor() == &control) return grid->wordsForPlace(grid->Row(), grid->Col());
  }
  return {};
}

bool saysWhatItIs(ControlKind kind) {
  using enum ControlKind;
  return kind == Label || kind == CommandButton || kind == CheckBox || kind == ToggleButton ||
         kind == Frame || kind == OptionButton;
}

}  // namespace

QString accessibleNameOf(const Control& control) {
  if (const String name = nameByGrid(control); !name.empty()) return toQt(name);
  const bool saysItself = saysWhatItIs(control.kind()) && !control.content().empty();
  const QString words = saysItself ? toQt(control.content()) : nameByWords(control);
  QString name = withoutAccessKey(words).simplified();
  if (name.isEmpty()) name = withoutAccessKey(frameAround(control)).simplified();
  // A button that shows a picture alone says by its tip what it does.
  if (name.isEmpty()) name = toQt(control.ToolTipText()).simplified();
  // A list that no label stands beside shows what the form is about.
  if (name.isEmpty() && control.kind() == ControlKind::TDBList)
    name = toQt(control.form().Caption()).simplified();
  return name.isEmpty() ? toQt(control.fullName()) : name;
}

QString withoutAccessKey(const QString& caption) {
  QString plain;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == QLatin1Char('&') && i + 1 < caption.size()) ++i;
    plain += caption[i];
  }
  return plain;
}

}  // namespace zqn::qt
