// SPDX-License-Identifier: MIT
#include "split/split_values.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "runtime/ascii.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

constexpr double largestYear = 9999;

enum DatePart { Day, Month, Year };

/// The three fields of a typed date, cut by points and by length.
std::array<String, 3> dateFields(StringView text) {
  constexpr std::array<std::size_t, 3> longest{2, 2, 4};
  std::array<String, 3> fields;
  std::size_t field = 0;
  for (const char16_t unit : text) {
    if (unit != u'.' && fields[field].size() < longest[field]) {
      fields[field] += unit;
      continue;
    }
    if (++field == fields.size()) break;
    if (unit != u'.') fields[field] += unit;
  }
  return fields;
}

/// The digits of a year as typed; "" for none. A number in another form ("1e3") counts by its value.
String yearDigits(const String& typed) {
  if (std::ranges::all_of(typed, ascii::isDigit)) {
    const bool tooEarly = typed.size() == 4 && typed.starts_with(u"00");
    return tooEarly ? typed.substr(2) : typed;
  }
  if (!IsNumeric(typed)) return {};
  const double value = std::floor(CDbl(typed));
  return value >= 0 && value <= largestYear ? numberText(value) : String();
}

int yearOf(const String& typed) {
  const String digits = yearDigits(typed);
  int present = civil(Now()).year;
  if (digits.size() == 2 && CLng(digits) > present % 100 + 10) present -= 100;
  String year = Format(std::int32_t{present}, u"0000");
  year.replace(year.size() - digits.size(), digits.size(), digits);
  return CLng(year);
}

int absoluteVal(const String& text) { return static_cast<int>(std::abs(Val(text))); }

String padded(int number, StringView pattern) { return Format(std::int32_t{number}, pattern); }

}  // namespace

double Val2(const Variant& value) {
  try {
    String text;
    for (const char16_t unit : concatenate(value)) {
      if (unit != u'.') text += unit == u',' ? u'.' : unit;
    }
    return Val(text);
  } catch (const RuntimeError&) {
    return 0;
  }
}

String quantityText(double quantity) { return Format(quantity, u"#,##0.000"); }

String ParseDate(StringView text) {
  const std::array<String, 3> fields = dateFields(text);
  const int year = yearOf(fields[Year]);
  const int month = std::clamp(absoluteVal(fields[Month]), 1, 12);
  const String behindDay = u"." + padded(month, u"00") + u"." + padded(year, u"0000");
  const int day = std::clamp(absoluteVal(fields[Day]), 1, LastOfMonth(u"01" + behindDay));
  return padded(day, u"00") + behindDay;
}

int LastOfMonth(StringView text) {
  constexpr int intoNextMonth = 31;
  // Counted on in the calendar: no date is too late for it.
  const CivilDate date = civil(CDate(text));
  const CivilDate next = civil(dateSerial(date.year, date.month, date.day + intoNextMonth));
  return civil({dateSerial(next.year, next.month, 1).days - 1}).day;
}

Variant DateToStore(const Variant& value) {
  const String text = concatenate(value);
  if (Trim(text).empty()) return Null;
  if (!IsDate(text)) return u"";
  return Format(Date{std::trunc(CDate(text).days)}, u"yyyymmddhhnnss");
}

String dateFromStore(StringView stored) {
  const auto cut = [&](std::size_t start, std::size_t length) {
    return start < stored.size() ? String(stored.substr(start, length)) : String();
  };
  return cut(6, 2) + u"." + cut(4, 2) + u"." + cut(0, 4);
}

}  // namespace zqn
