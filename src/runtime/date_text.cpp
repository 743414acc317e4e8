// SPDX-License-Identifier: MIT
#include "runtime/date_text.h"

#include <array>
#include <chrono>
#include <vector>

#include "runtime/ascii.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

constexpr std::size_t LongestNumber = 4;
constexpr int TwoDigitSwitch = 30;  // "29" is 2029, "30" is 1930
constexpr std::size_t ShortestName = 3;

using ascii::isDigit;
bool isBlank(char16_t unit) { return unit == u' ' || unit == u'\t'; }
bool isLetter(char16_t unit) { return upperUnit(unit) != lowerUnit(unit); }

// A number or the name of a month.
struct Field {
  int value = 0;
  std::size_t digits = 0;  // 0 for a name
  bool isName() const { return digits == 0; }
  bool isLong() const { return digits > 2; }
};

class Reader {
 public:
  Reader(StringView text, const Locale& locale) : rest_(text), locale_(locale) {
    while (!rest_.empty() && isBlank(rest_.back())) rest_.remove_suffix(1);
  }

  std::optional<Date> read() {
    std::vector<Field> fields;
    skipBlanks();
    while (fields.size() < 3) {
      const StringView start = rest_;
      const std::optional<Field> field = takeField();
      if (!field || atTimeSign()) {
        rest_ = start;
        break;
      }
      fields.push_back(*field);
      skipSeparator();
    }
    const bool timeOnly = fields.empty();
    std::optional<CivilDate> date = timeOnly ? CivilDate() : dateOf(fields);
    if (!date || (timeOnly && rest_.empty()) || (!rest_.empty() && !takeTime(*date))) return std::nullopt;
    return dateSerial(*date);
  }

 private:
  void skipBlanks() {
    while (!rest_.empty() && isBlank(rest_.front())) rest_.remove_prefix(1);
  }

  void skipSeparator() {
    skipBlanks();
    if (rest_.empty()) return;
    const char16_t unit = rest_.front();
    const bool last = rest_.size() == 1;
    // "5.3." is a way to write a day, "5-3-" is not.
    if (unit == u'.' ||
        (!last && (unit == u'-' || unit == u'/' || unit == u',' || unit == locale_.dateSeparator))) {
      rest_.remove_prefix(1);
    }
    skipBlanks();
  }

  // Where the point does not separate dates it separates times.
  bool atTimeSign() const {
    if (rest_.empty()) return false;
    return rest_.front() == u':' || (rest_.front() == u'.' && locale_.dateSeparator != u'.');
  }

  std::optional<Field> takeNumber() {
    Field field;
    while (!rest_.empty() && isDigit(rest_.front())) {
      field.value = field.value * 10 + (rest_.front() - u'0');
      rest_.remove_prefix(1);
      if (++field.digits > LongestNumber) return std::nullopt;
    }
    if (field.digits == 0) return std::nullopt;
    return field;
  }

  std::optional<Field> takeField() {
    if (!rest_.empty() && isLetter(rest_.front())) return takeMonthName();
    return takeNumber();
  }

  std::optional<Field> takeMonthName() {
    std::size_t length = 0;
    while (length < rest_.size() && isLetter(rest_[length])) ++length;
    const StringView word = rest_.substr(0, length);
    const auto same = [&](StringView name) { return sameName(word, name); };
    for (std::size_t i = 0; i < locale_.monthNames.size(); ++i) {
      const StringView name = locale_.monthNames[i];
      if (same(locale_.shortMonthNames[i]) || (length >= ShortestName && same(name.substr(0, length)))) {
        rest_.remove_prefix(length);
        return Field{static_cast<int>(i) + 1, 0};
      }
    }
    return std::nullopt;
  }

  static std::optional<CivilDate> calendarDay(Field year, Field month, Field day) {
    if (year.isName() || day.isName() || day.isLong() || (!month.isName() && month.isLong())) {
      return std::nullopt;
    }
    CivilDate date;
    date.year = year.value >= 100 ? year.value : year.value + (year.value < TwoDigitSwitch ? 2000 : 1900);
    date.month = month.value;
    date.day = day.value;
    const std::chrono::year_month_day calendar(std::chrono::year(date.year),
                                               std::chrono::month(static_cast<unsigned>(month.value)),
                                               std::chrono::day(static_cast<unsigned>(day.value)));
    return calendar.ok() ? std::optional(date) : std::nullopt;
  }

  std::optional<CivilDate> dateOf(const std::vector<Field>& fields) const {
    if (fields.size() == 2) return dayAndMonth(fields[0], fields[1]);
    if (fields.size() != 3) return std::nullopt;

    using Order = Locale::DateOrder;
    enum class Try { DayMonthYear, MonthDayYear, YearMonthDay, YearDayMonth };
    using enum Try;
    // First the locale's own order, then with month and day swapped, then the year at the other end.
    std::array<Try, 4> tries = {DayMonthYear, MonthDayYear, YearMonthDay, YearDayMonth};
    if (locale_.dateOrder == Order::MonthDayYear) {
      tries = {MonthDayYear, DayMonthYear, YearMonthDay, YearDayMonth};
    } else if (locale_.dateOrder == Order::YearMonthDay) {
      tries = {YearMonthDay, YearDayMonth, DayMonthYear, MonthDayYear};
    }
    const auto& [one, two, three] = std::array{fields[0], fields[1], fields[2]};
    for (const Try order : tries) {
      const std::optional<CivilDate> date = order == DayMonthYear   ? calendarDay(three, two, one)
                                            : order == MonthDayYear ? calendarDay(three, one, two)
                                            : order == YearMonthDay ? calendarDay(one, two, three)
                                                                    : calendarDay(one, three, two);
      if (date) return date;
    }
    return std::nullopt;
  }

  // Of the present year; a long number is the year of a month instead.
  std::optional<CivilDate> dayAndMonth(Field one, Field two) const {
    if (one.isLong() || two.isLong()) {
      const Field& year = one.isLong() ? one : two;
      return calendarDay(year, one.isLong() ? two : one, Field{1, 1});
    }
    const Field present{civil(locale_.now()).year, LongestNumber};
    const bool monthFirst =
        one.isName() || (!two.isName() && locale_.dateOrder != Locale::DateOrder::DayMonthYear);
    const Field& month = monthFirst ? one : two;
    const Field& day = monthFirst ? two : one;
    const std::optional<CivilDate> date = calendarDay(present, month, day);
    return date ? date : calendarDay(present, day, month);
  }

  bool takeTime(CivilDate& date) {
    std::array<int, 3> parts{};
    std::size_t count = 0;
    while (count < parts.size()) {
      const std::optional<Field> part = takeNumber();
      if (!part || part->isLong()) return false;
      parts[count++] = part->value;
      if (!atTimeSign()) break;
      rest_.remove_prefix(1);
    }
    skipBlanks();
    if (!rest_.empty() || count < 2 || parts[0] > 23 || parts[1] > 59 || parts[2] > 59) return false;
    date.hour = parts[0];
    date.minute = parts[1];
    date.second = parts[2];
    return true;
  }

  StringView rest_;
  const Locale& locale_;
};

}  // namespace

std::optional<Date> readDate(StringView text, const Locale& locale) { return Reader(text, locale).read(); }

}  // namespace zqn
