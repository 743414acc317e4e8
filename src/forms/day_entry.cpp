// SPDX-License-Identifier: MIT
#include "forms/day_entry.h"

#include <algorithm>

#include "runtime/ascii.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

constexpr std::size_t longestDate = 10;
constexpr int leastYear = 100;
constexpr int lastYear = 9999;

String dayText(const Variant& day) { return day.isNull() ? String() : Format(day, u"dd.mm.yyyy"); }

/// Day, month and year, as far as they are typed. Digits alone fall apart into two, two, and the rest.
std::vector<String> partsOf(StringView typed) {
  if (typed.find(u'.') != StringView::npos) return Split(typed, u".");
  if (typed.size() != 4 && typed.size() != 6 && typed.size() != 8) return {};
  return {String(typed.substr(0, 2)), String(typed.substr(2, 2)), String(typed.substr(4))};
}

/// Digits alone, which accepts() has seen to; 0 for none.
int numberOf(StringView digits) { return digits.empty() ? 0 : CLng(String(digits)); }

int yearOf(StringView typed) {
  constexpr int firstOfLastCentury = 30;
  if (typed.empty()) return civil(Today()).year;
  const int year = numberOf(typed);
  if (typed.size() > 2) return year;
  return year < firstOfLastCentury ? year + 2000 : year + 1900;
}

}  // namespace

DayEntry::DayEntry(Form& form, const ControlDesign& design, int tabIndex)
    : ValueEntry(form, design, tabIndex), caption_(design.text) {
  limitLength(static_cast<int>(longestDate));
}

String DayEntry::editText() const { return dayText(day()); }

bool DayEntry::accepts(StringView text) const {
  return text.size() <= longestDate &&
         std::ranges::all_of(text, [](char16_t c) { return c == u'.' || ascii::isDigit(c); });
}

std::optional<Variant> DayEntry::read(StringView typed) const {
  const std::optional<Variant> day = readDay(typed);
  if (!day) return std::nullopt;
  return valueOf(*day);
}

std::optional<Variant> DayEntry::readDay(StringView typed) {
  if (typed.empty()) return Variant(Null);
  std::vector<String> parts = partsOf(typed);
  if (parts.size() < 2 || parts.size() > 3) return std::nullopt;
  parts.resize(3);
  const int day = numberOf(parts[0]);
  const int month = numberOf(parts[1]);
  const int year = yearOf(parts[2]);
  if (day > 31 || month > 12 || year < leastYear || year > lastYear) return std::nullopt;
  const Date date = dateSerial(year, month, day);
  const CivilDate found = civil(date);
  if (found.day != day || found.month != month) return std::nullopt;
  return Variant(date);
}

void DayEntry::userChose(const Variant& day) {
  const String text = dayText(day);
  userEdited(text, 0, static_cast<int>(text.size()));
}

bool DayEntry::ownKey(const KeyStroke& stroke) {
  if (stroke.shift != shift::None || (stroke.code != key::F2 && stroke.code != key::F3))
    return ValueEntry::ownKey(stroke);
  userChose(stroke.code == key::F2 ? Variant(Today()) : Variant(Null));
  return true;
}

const PropertyEntry* DayEntry::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Caption", [](const Control& c) { return Variant(static_cast<const DayEntry&>(c).Caption()); },
       nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : ValueEntry::findProperty(name);
}

}  // namespace zqn
