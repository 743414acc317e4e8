// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "runtime/convert.h"
#include "runtime/locale.h"
#include "testing/runtime.h"

namespace zqn {
namespace {

struct Row {
  Variant value;
  const char16_t* pattern;
  const char16_t* text;
};

void expectAll(std::initializer_list<Row> rows) {
  for (const Row& row : rows) {
    EXPECT_EQ(Format(row.value, row.pattern), row.text)
        << testing::PrintToString(row.value) << " with " << toUtf8(row.pattern);
  }
}

TEST(Format, WritesNumbersByThePattern) {
  expectAll({
      {1234.5, u"#,##0.000", u"1.234,500"},
      {0, u"#,##0.000", u"0,000"},
      {-1234.5, u"#,##0.000", u"-1.234,500"},
      {999.0, u"#,##0.000", u"999,000"},
      {1000000, u"#,##0", u"1.000.000"},
      {123456, u"#,##0", u"123.456"},
      {5, u"00", u"05"},
      {26, u"0000", u"0026"},
      {123, u"00", u"123"},
      {-5, u"00", u"-05"},
      {1.5, u"0.00", u"1,50"},
      {0.5, u"0.00", u"0,50"},
      {0.5, u"#.00", u",50"},
      {1234.5, u".0", u"1234,5"},
      {5, u"0.##", u"5,"},
      {5.25, u"0.##", u"5,25"},
      {5.2, u"0.0#", u"5,2"},
      {0, u"#", u""},
      {0, u"0", u"0"},
      {0.5, u"0%", u"50%"},
      {0.005, u"0.0%", u"0,5%"},
      {5, u"0 \"Stück\"", u"5 Stück"},
      {5, u"\\#0", u"#5"},
      {1234, u"00-00", u"12-34"},
      {1e15, u"0", u"1000000000000000"},
      {123456789.125, u"#,##0.00", u"123.456.789,13"},
      {true, u"0", u"-1"},
      {Date{46086}, u"0", u"46086"},
  });
}

TEST(Format, RoundsHalfAwayFromZeroOnTheDecimalValue) {
  expectAll({
      {2.5, u"0", u"3"},
      {3.5, u"0", u"4"},
      {-2.5, u"0", u"-3"},
      {1.7, u"0", u"2"},
      {0.5, u"0", u"1"},
      {0.49, u"0", u"0"},
      {0.0005, u"0.000", u"0,001"},
      {1.005, u"0.00", u"1,01"},
      {2.675, u"0.00", u"2,68"},
      {9.9999999, u"0.000000", u"10,000000"},
      {999.9996, u"#,##0.000", u"1.000,000"},
      {0.05, u"0", u"0"},
      {0.96, u"0.0", u"1,0"},
      {0.06, u"0.0", u"0,1"},
      {0.0004, u"0.000", u"0,000"},
      {-0.0004, u"0.000", u"0,000"},
      {0.1 + 0.2 - 0.3, u"#,##0.000", u"0,000"},
  });
}

TEST(Format, TakesOneSectionEachForNegativeZeroAndNull) {
  expectAll({
      {2.5, u"##0.00;(##0.00);0;0", u"2,50"},
      {-2.5, u"##0.00;(##0.00);0;0", u"(2,50)"},
      {0, u"##0.00;(##0.00);0;0", u"0"},
      {Null, u"##0.00;(##0.00);0;0", u"0"},
      {5, u"###0;;0;0", u"5"},
      {-5, u"###0;;0;0", u"-5"},
      {0, u"###0;;0;0", u"0"},
      {Null, u"###0;;0;leer", u"leer"},
      {-5, u"0;0", u"5"},
      {0, u"0.0;-0.0", u"0,0"},
  });
}

TEST(Format, ConvertsATextFirst) {
  expectAll({
      {u"6,90", u"0.000", u"6,900"},
      {u"1.234,5", u"0.00", u"1234,50"},
      {u"1.5", u"0", u"15"},
      {u"abc", u"0.00", u"abc"},
      {u"12a", u"#,##0.000", u"12a"},
      {u" ", u"0.00", u" "},
      {u"", u"0.00", u""},
      {Null, u"0.00", u""},
      {Variant(), u"0.00", u""},
      {u"5.3.2026", u"yyyymmddhhnnss", u"20260305000000"},
      {u"2026-03-05 14:30", u"dd.mm.yyyy hh:nn", u"05.03.2026 14:30"},
      {u"abc", u"dd.mm.yyyy", u"abc"},
      {u"31.02.2026", u"dd.mm.yyyy", u"31.02.2026"},
      {u"", u"dd.mm.yyyy", u""},
      {Null, u"dd.mm.yyyy", u""},
      {u"abc", u"", u"abc"},
      {1.5, u"", u"1,5"},
      {true, u"", u"Wahr"},
  });
  EXPECT_EQ(errorNumberOf([] { Format(Missing, u"0"); }), error::TypeMismatch);
}

TEST(Format, WritesDatesByThePattern) {
  const Date day = dateSerial(2026, 3, 5);
  const Date moment = dateSerial({2026, 3, 5, 14, 7, 9});
  expectAll({
      {day, u"dd.mm.yyyy", u"05.03.2026"},
      {day, u"yyyymmddhhnnss", u"20260305000000"},
      {moment, u"yyyymmddhhnnss", u"20260305140709"},
      {day, u"dd", u"05"},
      {day, u"d.m.yy", u"5.3.26"},
      {day, u"DD.MM.YYYY", u"05.03.2026"},
      {moment, u"h:n:s", u"14:7:9"},
      {moment, u"hh:mm:ss", u"14:07:09"},
      {moment, u"hhmm mm", u"1407 03"},
      {moment, u"yyyy-mm-dd hh:mm", u"2026-03-05 14:07"},
      {day, u"dd/mm", u"05.03"},
      {day, u"\"Tag\" d", u"Tag 5"},
      {46086, u"dd.mm.yyyy", u"05.03.2026"},
      {dateSerial(100, 1, 1), u"yyyy", u"0100"},
  });
  EXPECT_EQ(errorNumberOf([] { Format(1e300, u"dd.mm.yyyy"); }), error::Overflow);
}

TEST(Format, FollowsTheLocale) {
  Locale american = Locale::german();
  american.decimal = u'.';
  american.thousands = u',';
  american.dateSeparator = u'/';
  american.dateOrder = Locale::DateOrder::MonthDayYear;
  american.now = [] { return dateSerial(2026, 3, 5); };
  const Locale::Scope scope(american);
  expectAll({
      {1234.5, u"#,##0.000", u"1,234.500"},
      {u"6,90", u"0", u"690"},
      {u"12-11", u"dd.mm.yyyy", u"11.12.2026"},
      {dateSerial(2026, 3, 5), u"dd/mm", u"05/03"},
  });
}

}  // namespace
}  // namespace zqn
