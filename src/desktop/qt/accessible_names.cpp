// SPDX-License-Identifier: MIT
#include "desktop/qt/accessible_names.h"

#include <algorithm>
#include <limits>

#include "desktop/qt/text.h"
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

bool saysWhatItIs(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::CommandButton || kind == ControlKind::CheckBox;
}

}  // namespace

QString accessibleNameOf(const Control& control) {
  const QString words = saysWhatItIs(control.kind()) ? toQt(control.content()) : labelFor(control);
  const QString name = withoutAccessKey(words).simplified();
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
