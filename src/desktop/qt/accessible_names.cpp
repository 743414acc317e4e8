// SPDX-License-Identifier: MIT
#include "desktop/qt/accessible_names.h"

#include <algorithm>
#include <limits>

#include "desktop/qt/text.h"
#include "forms/day_entry.h"
#include "forms/form.h"
#include "forms/label.h"

namespace zqn::qt {

namespace {

/// A label further away than this many twips says nothing about a field.
constexpr int reachLeft = 600;
constexpr int reachAbove = 300;
constexpr int farAway = std::numeric_limits<int>::max();

bool meet(int start, int length, int otherStart, int otherLength) {
  return start < otherStart + otherLength && otherStart < start + length;
}

/// How far the label stands from the control that it may explain, in twips; a label above counts as further
/// away than any to the left. Labels reach a little into their field in some designs.
int distance(const Label& label, const Control& control) {
  if (label.container() != control.container() || !label.Visible()) return farAway;
  const int left = control.Left() - (label.Left() + label.Width());
  if (label.Left() < control.Left() && left <= reachLeft &&
      meet(label.Top(), label.Height(), control.Top() + control.Height() / 4, control.Height() / 2))
    return std::max(left, 0);
  const int above = control.Top() - (label.Top() + label.Height());
  if (label.Top() < control.Top() && above <= reachAbove &&
      meet(label.Left(), label.Width(), control.Left(), control.Width()))
    return reachLeft + std::max(above, 0) + std::abs(control.Left() - label.Left());
  return farAway;
}

QString labelFor(const Control& control) {
  QString nearest;
  int least = farAway;
  for (const auto& each : control.form().controls()) {
    const auto* label = dynamic_cast<const Label*>(each.get());
    if (label == nullptr || label->Caption().empty()) continue;
    const int away = distance(*label, control);
    if (away >= least) continue;
    least = away;
    nearest = toQt(label->Caption());
  }
  return nearest;
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

bool saysWhatItIs(ControlKind kind) {
  using enum ControlKind;
  return kind == Label || kind == CommandButton || kind == CheckBox || kind == ToggleButton ||
         kind == Frame || kind == OptionButton;
}

}  // namespace

QString accessibleNameOf(const Control& control) {
  const bool saysItself = saysWhatItIs(control.kind()) && !control.content().empty();
  const QString words = saysItself ? toQt(control.content()) : nameByWords(control);
  QString name = withoutAccessKey(words).simplified();
  // A button that shows a picture alone says by its tip what it does.
  if (name.isEmpty()) name = toQt(control.ToolTipText()).simplified();
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
