// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <ctime>

#include "runtime/convert.h"
#include "runtime/locale.h"
#include "testing/runtime.h"

namespace zqn {
namespace {

// 5 March 2026, half past two in the afternoon.
Locale fixedDay(Locale::DateOrder order = Locale::DateOrder::DayMonthYear) {
  Locale locale = Locale::german();
  locale.dateOrder = order;
  locale.now = [] { return dateSerial({2026, 3, 5, 14, 30, 0}); };
  return locale;
}

std::string iso(Date date) {
  const CivilDate at = civil(date);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", at.year, at.month, at.day, at.hour,
                at.minute, at.second);
  return text;
}

struct DateText {
  const char16_t* text;
  const char* date;
};

TEST(CDate, ReadsTextsAsWrittenInGermany) {
  const Locale::Scope scope(fixedDay());
  const DateText rows[] = {
      {u"05.03.2026", "2026-03-05 00:00:00"},
      {u"5.3.2026", "2026-03-05 00:00:00"},
      {u"5-3-2026", "2026-03-05 00:00:00"},
      {u"5/3/2026", "2026-03-05 00:00:00"},
      {u"5 3 2026", "2026-03-05 00:00:00"},
      {u"  5. 3. 2026 ", "2026-03-05 00:00:00"},
      {u"5. März 2026", "2026-03-05 00:00:00"},
      {u"5 MÄRZ 2026", "2026-03-05 00:00:00"},
      {u"5. Mrz. 2026", "2026-03-05 00:00:00"},
      {u"5-Sept-2026", "2026-09-05 00:00:00"},
      {u"Dez 24 2026", "2026-12-24 00:00:00"},
      {u"März 2026", "2026-03-01 00:00:00"},
      {u"5. Mai", "2026-05-05 00:00:00"},
      {u"02.13.1970", "1970-02-13 00:00:00"},
      {u"2020-01-11", "2020-01-11 00:00:00"},
      {u"2020-13-11", "2020-11-13 00:00:00"},
      {u"29.02.2024", "2024-02-29 00:00:00"},
      {u"01.01.100", "0100-01-01 00:00:00"},
      {u"31.12.9999", "9999-12-31 00:00:00"},
      {u"1.1.00", "2000-01-01 00:00:00"},
      {u"1.1.29", "2029-01-01 00:00:00"},
      {u"1.1.30", "1930-01-01 00:00:00"},
      {u"1.1.99", "1999-01-01 00:00:00"},
      {u"31.02.26", "1931-02-26 00:00:00"},
      {u"5.3", "2026-03-05 00:00:00"},
      {u"5.3.", "2026-03-05 00:00:00"},
      {u"2.13", "2026-02-13 00:00:00"},
      {u"12-11", "2026-11-12 00:00:00"},
      {u"03.2027", "2027-03-01 00:00:00"},
      {u"05.03.2026 14:30", "2026-03-05 14:30:00"},
      {u"5.3.2026 1:02:03", "2026-03-05 01:02:03"},
      {u"5.3 14:30", "2026-03-05 14:30:00"},
      {u"2026-03-05 23:59:59", "2026-03-05 23:59:59"},
      {u"14:30", "1899-12-30 14:30:00"},
  };
  for (const DateText& row : rows) {
    EXPECT_EQ(iso(CDate(row.text)), row.date) << toUtf8(row.text);
    EXPECT_TRUE(IsDate(row.text)) << toUtf8(row.text);
  }
}

TEST(CDate, RefusesWhatIsNoDate) {
  const Locale::Scope scope(fixedDay());
  for (const char16_t* text : {u"",
                               u" ",
                               u"5",
                               u"2026",
                               u"20260305",
                               u"20260305000000",
                               u"1,5e3",
                               u"abc",
                               u"Ma 2026",
                               u"Foo 2026",
                               u"31.02.2026",
                               u"29.02.2025",
                               u"00.01.2026",
                               u"13.13.2026",
                               u"32.12.2026",
                               u"1.1.12345",
                               u"5.3.12345",
                               u"1.1.2026.1",
                               u"1..1.2026",
                               u"5-3-",
                               u"5-3-2026-",
                               u"31.02",
                               u"005.3.2026",
                               u"5.3.2026 24:00",
                               u"5.3.2026 12:60",
                               u"5.3.2026 12:00:60",
                               u"5.3.2026 12",
                               u"12:",
                               u"12:00:00:00",
                               u":30",
                               u"5.3.2026 x",
                               u"5.3.2026T10:00",
                               u"1.1.0099x",
                               u"Mai",
                               u"Mai Mai",
                               u"März 5 Mai"}) {
    EXPECT_EQ(errorNumberOf([&] { CDate(text); }), error::TypeMismatch) << toUtf8(text);
    EXPECT_FALSE(IsDate(text)) << toUtf8(text);
  }
}

TEST(CDate, FollowsTheOrderOfTheLocale) {
  {
    Locale american = fixedDay(Locale::DateOrder::MonthDayYear);
    american.dateSeparator = u'/';
    const Locale::Scope scope(american);
    EXPECT_EQ(iso(CDate(u"12-11-2026")), "2026-12-11 00:00:00");
    EXPECT_EQ(iso(CDate(u"12/11")), "2026-12-11 00:00:00");
    EXPECT_EQ(iso(CDate(u"13/2/1970")), "1970-02-13 00:00:00");
    EXPECT_EQ(iso(CDate(u"2.5")), "1899-12-30 02:05:00") << "the point separates hours and minutes there";
    EXPECT_FALSE(IsDate(u"5.3.2026"));
  }
  {
    const Locale::Scope scope(fixedDay(Locale::DateOrder::YearMonthDay));
    EXPECT_EQ(iso(CDate(u"26-03-05")), "2026-03-05 00:00:00");
    EXPECT_EQ(iso(CDate(u"5.3.2026")), "2026-03-05 00:00:00");
    EXPECT_EQ(iso(CDate(u"3-5")), "2026-03-05 00:00:00");
  }
}

TEST(CDate, TakesNumbersAsDays) {
  EXPECT_EQ(CDate(46086), Date{46086});
  EXPECT_EQ(CDate(Date{1.5}), Date{1.5});
  EXPECT_EQ(CDate(Variant()), Date{0});
  EXPECT_EQ(CDate(2958465.75), Date{2958465.75});
  EXPECT_EQ(errorNumberOf([] { CDate(2958466.0); }), error::Overflow);
  EXPECT_EQ(errorNumberOf([] { CDate(-657435.0); }), error::Overflow);
  EXPECT_EQ(errorNumberOf([] { CDate(std::nan("")); }), error::Overflow);
}

TEST(IsDate, IsTrueForDatesAndTheirTextsOnly) {
  EXPECT_TRUE(IsDate(Date{5}));
  EXPECT_FALSE(IsDate(5));
  EXPECT_FALSE(IsDate(Variant()));
  EXPECT_FALSE(IsDate(Null));
  EXPECT_FALSE(IsDate(true));
}

TEST(Calendar, DaysCountFromTheEndOf1899) {
  EXPECT_EQ(dateSerial(1899, 12, 30), Date{0});
  EXPECT_EQ(dateSerial(1900, 1, 1), Date{2});
  EXPECT_EQ(dateSerial(2026, 3, 5), Date{46086});
  EXPECT_EQ(dateSerial(100, 1, 1), Date{-657434});
  EXPECT_EQ(dateSerial(9999, 12, 31), Date{2958465});
}

TEST(Calendar, MonthsAndDaysRunOver) {
  EXPECT_EQ(dateSerial(2026, 13, 1), dateSerial(2027, 1, 1));
  EXPECT_EQ(dateSerial(2026, 0, 1), dateSerial(2025, 12, 1));
  EXPECT_EQ(dateSerial(2026, -11, 1), dateSerial(2025, 1, 1));
  EXPECT_EQ(dateSerial(2026, 3, 0), dateSerial(2026, 2, 28));
  EXPECT_EQ(dateSerial(2024, 3, 0), dateSerial(2024, 2, 29));
  EXPECT_EQ(dateSerial(2026, 2, 31), dateSerial(2026, 3, 3));
  EXPECT_EQ(dateSerial(2026, 1, -30), dateSerial(2025, 12, 1));
  EXPECT_EQ(errorNumberOf([] { dateSerial(2147483647, 1, 1); }), error::InvalidProcedureCall);
  EXPECT_EQ(errorNumberOf([] { dateSerial(2026, -2147483647 - 1, 1); }), error::InvalidProcedureCall);
  EXPECT_EQ(errorNumberOf([] { dateSerial(2026, 1, 2147483647); }), error::InvalidProcedureCall);
}

TEST(Calendar, TheLastDayOfTheCalendarCanBeCountedOn) {
  EXPECT_EQ(iso({dateSerial(9999, 12, 31).days + 31}), "10000-01-31 00:00:00");
}

TEST(Calendar, EveryDayAndSecondIsTakenApartAndPutTogetherAgain) {
  for (int day = -657434; day <= 2958465; day += 97) {
    const Date date{static_cast<double>(day)};
    ASSERT_EQ(dateSerial(civil(date)), date) << day;
  }
  for (int second = 0; second < 86400; ++second) {
    for (const int day : {46086, 0, -1}) {
      const double time = second / 86400.0;
      const CivilDate at = civil({day < 0 ? day - time : day + time});
      ASSERT_EQ(at.hour * 3600 + at.minute * 60 + at.second, second);
      ASSERT_EQ(at.day, day == 46086 ? 5 : day == 0 ? 30 : 29);
    }
  }
}

TEST(Calendar, BeforeItsFirstDayTheTimeStillCountsForward) {
  EXPECT_EQ(iso({-1.25}), "1899-12-29 06:00:00");
  EXPECT_EQ(dateSerial({1899, 12, 29, 6, 0, 0}), Date{-1.25});
  EXPECT_EQ(iso({0.25}), "1899-12-30 06:00:00");
}

TEST(Calendar, AFractionOfASecondIsRounded) {
  EXPECT_EQ(iso({46086 + 0.4 / 86400}), "2026-03-05 00:00:00");
  EXPECT_EQ(iso({46086 + 86399.6 / 86400}), "2026-03-06 00:00:00");
}

TEST(Calendar, FarOutsideThereIsNoDay) {
  EXPECT_EQ(errorNumberOf([] { civil({1e300}); }), error::Overflow);
  EXPECT_EQ(errorNumberOf([] { civil({std::nan("")}); }), error::Overflow);
}

TEST(Clock, NowAndTodayComeFromTheLocale) {
  const Locale::Scope scope(fixedDay());
  EXPECT_EQ(iso(Now()), "2026-03-05 14:30:00");
  EXPECT_EQ(iso(Today()), "2026-03-05 00:00:00");
}

TEST(Clock, IsTheSystemsLocalTimeUnlessSet) {
  const std::time_t before = std::time(nullptr);
  const CivilDate at = civil(Now());
  const std::time_t after = std::time(nullptr);
  std::tm local{};
  local.tm_year = at.year - 1900;
  local.tm_mon = at.month - 1;
  local.tm_mday = at.day;
  local.tm_hour = at.hour;
  local.tm_min = at.minute;
  local.tm_sec = at.second;
  local.tm_isdst = -1;
  const std::time_t shown = std::mktime(&local);
  EXPECT_GE(shown, before);
  EXPECT_LE(shown, after);
}

}  // namespace
}  // namespace zqn
