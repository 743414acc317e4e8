// SPDX-License-Identifier: MIT
#include <chrono>
#include <cmath>

#include "runtime/convert.h"
#include "runtime/date_text.h"
#include "runtime/locale.h"

namespace zqn {

namespace {

constexpr std::chrono::sys_days Epoch = std::chrono::year(1899) / 12 / 30;
constexpr double FirstDay = -657434;  // 1 January 100
constexpr double LastDay = 2958465;   // 31 December 9999
constexpr int SecondsOfDay = 24 * 60 * 60;
// A little more than the years 100 to 9999, so that a day can be counted on from the last.
constexpr int FurthestDay = 4'000'000;
constexpr int FurthestMonth = 100'000;
constexpr int FurthestYear = 20'000;

bool isWithin(int number, int limit) { return number >= -limit && number <= limit; }

}  // namespace

Date CDate(const Variant& value) {
  if (const String* text = value.as<String>()) {
    if (const std::optional<Date> date = readDate(*text, Locale::current())) return *date;
    throw RuntimeError(error::TypeMismatch);
  }
  const Date date{CDbl(value)};
  if (!(date.days > FirstDay - 1 && date.days < LastDay + 1)) throw RuntimeError(error::Overflow);
  return date;
}

bool IsDate(const Variant& value) {
  if (const String* text = value.as<String>()) return readDate(*text, Locale::current()).has_value();
  return value.kind() == Variant::Kind::Date;
}

CivilDate civil(Date date) {
  if (!(std::abs(date.days) < FurthestDay)) throw RuntimeError(error::Overflow);
  // The time of day counts forward from midnight, before 1900 too: -1.25 is six o'clock on 29 December 1899.
  auto day = static_cast<int>(date.days);
  auto second = static_cast<int>(std::lround(std::abs(date.days - day) * SecondsOfDay));
  if (second == SecondsOfDay) {
    second = 0;
    ++day;
  }
  const std::chrono::year_month_day calendar(Epoch + std::chrono::days(day));
  return {static_cast<int>(calendar.year()),
          static_cast<int>(static_cast<unsigned>(calendar.month())),
          static_cast<int>(static_cast<unsigned>(calendar.day())),
          second / 3600,
          second / 60 % 60,
          second % 60};
}

Date dateSerial(int year, int month, int day) {
  using namespace std::chrono;
  if (!isWithin(year, FurthestYear) || !isWithin(month, FurthestMonth) || !isWithin(day, FurthestDay)) {
    throw RuntimeError(error::InvalidProcedureCall);
  }
  // From the first of January on, so that months run over by themselves.
  const year_month first = std::chrono::year(year) / January + months(month - 1);
  const sys_days date = sys_days(first / 1) + days(day - 1);
  return {static_cast<double>((date - Epoch).count())};
}

Date dateSerial(const CivilDate& date) {
  const double day = dateSerial(date.year, date.month, date.day).days;
  const double time = (date.hour * 3600 + date.minute * 60 + date.second) / static_cast<double>(SecondsOfDay);
  return {day < 0 ? day - time : day + time};
}

Date Now() { return Locale::current().now(); }

Date Today() { return {std::trunc(Now().days)}; }

}  // namespace zqn
