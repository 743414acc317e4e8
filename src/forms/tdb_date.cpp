// SPDX-License-Identifier: MIT
#include "forms/tdb_date.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "runtime/convert.h"

namespace zqn {

namespace {

constexpr std::size_t longestDate = 10;

/// Digits without points, six or eight of them, are a date too.
String withPoints(StringView typed) {
  const bool digitsOnly = typed.find(u'.') == StringView::npos;
  if (!digitsOnly || (typed.size() != 6 && typed.size() != 8)) return String(typed);
  return String(typed.substr(0, 2)) + u"." + String(typed.substr(2, 2)) + u"." + String(typed.substr(4));
}

}  // namespace

TDBDate::TDBDate(Form& form, const ControlDesign& design, int tabIndex)
    : TextEntry(form, design, tabIndex), caption_(design.text) {
  limitLength(static_cast<int>(longestDate));
  show(emptyMask);
}

void TDBDate::Value(const Variant& value) {
  become(value.isNull() ? Variant(Null) : Variant(Date{std::floor(CDate(value).days)}));
  show(value_.isNull() ? String(emptyMask) : dayText());
}

void TDBDate::become(Variant value) {
  if (value == value_) return;
  value_ = std::move(value);
  ValueChange.raise();
}

String TDBDate::dayText() const { return value_.isNull() ? String() : Format(value_, u"dd.mm.yyyy"); }

void TDBDate::show(StringView text) {
  const bool before = std::exchange(showing_, true);
  assignText(text);
  showing_ = before;
}

bool TDBDate::accepts(StringView text) const {
  return text.size() <= longestDate &&
         std::ranges::all_of(text, [](char16_t c) { return c == u'.' || (c >= u'0' && c <= u'9'); });
}

void TDBDate::edited() {
  if (showing_) return;
  Change.raise();
  const String typed = withPoints(Text());
  if (typed.empty()) {
    become(Null);
  } else if (IsDate(typed)) {
    become(Date{std::floor(CDate(typed).days)});
  }
}

bool TDBDate::ownKey(const KeyStroke& stroke) {
  switch (stroke.code) {
    case key::F2:
      become(Today());
      show(dayText());
      return true;
    case key::F3:
      become(Null);
      show(u"");
      return true;
    default:
      return TextEntry::ownKey(stroke);
  }
}

void TDBDate::focusEntered() {
  show(dayText());
  userSelected(0, static_cast<int>(Text().size()));
  changed();
}

void TDBDate::focusLeft() { show(value_.isNull() ? String(emptyMask) : dayText()); }

const PropertyEntry* TDBDate::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Caption", [](const Control& c) { return Variant(static_cast<const TDBDate&>(c).Caption()); },
       nullptr},
      {u"Value", [](const Control& c) { return static_cast<const TDBDate&>(c).Value(); },
       [](Control& c, const Variant& value) { static_cast<TDBDate&>(c).Value(value); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : TextEntry::findProperty(name);
}

}  // namespace zqn
