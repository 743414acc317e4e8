// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "runtime/convert.h"
#include "runtime/locale.h"
#include "testing/runtime.h"

namespace zqn {
namespace {

const double Huge = std::numeric_limits<double>::max();

struct NumberText {
  const char16_t* text;
  double number;
};

TEST(CDbl, ReadsTextsAsWrittenInGermany) {
  const NumberText rows[] = {
      {u"5", 5},
      {u" 5 ", 5},
      {u"\t5\t", 5},
      {u"+5", 5},
      {u"-5", -5},
      {u"5-", -5},
      {u"5+", 5},
      {u"- 5", -5},
      {u"5 -", -5},
      {u"(5)", -5},
      {u"( 5 )", -5},
      {u"1,5", 1.5},
      {u"1.5", 15},
      {u"1.2.3", 123},
      {u"1.234,5", 1234.5},
      {u"1,", 1},
      {u",5", 0.5},
      {u"-,5", -0.5},
      {u"007", 7},
      {u"2e3", 2000},
      {u"2E3", 2000},
      {u"2d3", 2000},
      {u"2D3", 2000},
      {u"2e+3", 2000},
      {u"25e-1", 2.5},
      {u"1,5e2-", -150},
      {u"5 €", 5},
      {u"€5", 5},
      {u"€ 1.234,50-", -1234.5},
      {u"&H1F", 31},
      {u"&hff", 255},
      {u"&O17", 15},
      {u"&HFFFF", -1},
      {u"&HFFFF&", 65535},
      {u"1e-400", 0},
      {u"0e999", 0},
      {u"1,7976931348623157e308", Huge},
      {u"123456789012345678", 123456789012345678.0},
  };
  for (const NumberText& row : rows) {
    EXPECT_EQ(CDbl(row.text), row.number) << toUtf8(row.text);
    EXPECT_TRUE(IsNumeric(row.text)) << toUtf8(row.text);
  }
}

TEST(CDbl, RefusesWhatIsNoNumber) {
  for (const char16_t* text :
       {u"",   u" ",  u"abc",   u"1,2,3", u"12a", u"a12", u"1,5.0", u"1 2", u"--5",  u"-5-",
        u"(5", u"5)", u"((5))", u"(-5)",  u"()",  u".",   u",",     u"-",   u"€",    u"5€€",
        u"e5", u"1e", u"1e+",   u"1ee5",  u"&H",  u"&HG", u"&O8",   u"&5",  u"Wahr", u"5\u200B"}) {
    EXPECT_EQ(errorNumberOf([&] { CDbl(text); }), error::TypeMismatch) << toUtf8(text);
    EXPECT_FALSE(IsNumeric(text)) << toUtf8(text);
  }
}

TEST(CDbl, TooLargeATextOverflows) {
  for (const char16_t* text : {u"1e309", u"-1e309", u"1e99999999999999999999", u"&H100000000", u"&H12345%"}) {
    EXPECT_EQ(errorNumberOf([&] { CDbl(text); }), error::Overflow) << toUtf8(text);
    EXPECT_FALSE(IsNumeric(text)) << toUtf8(text);
  }
  EXPECT_EQ(errorNumberOf([&] { CDbl(String(400, u'9')); }), error::Overflow);
  EXPECT_EQ(CDbl(u"0," + String(400, u'0') + u"1"), 0);
  EXPECT_EQ(CDbl(String(u"1") + String(400, u'0') + u"e-400"), 1);
}

TEST(CDbl, FollowsTheLocale) {
  Locale english = Locale::german();
  english.decimal = u'.';
  english.thousands = u',';
  english.currency = u"$";
  const Locale::Scope scope(english);
  EXPECT_EQ(CDbl(u"1.5"), 1.5);
  EXPECT_EQ(CDbl(u"6,90"), 690);
  EXPECT_EQ(CDbl(u"$1,234.50"), 1234.5);
  EXPECT_EQ(numberText(1234.5), u"1234.5");
}

TEST(CDbl, TakesEveryKind) {
  EXPECT_EQ(CDbl(Variant()), 0);
  EXPECT_EQ(CDbl(true), -1);
  EXPECT_EQ(CDbl(false), 0);
  EXPECT_EQ(CDbl(std::int16_t{-7}), -7);
  EXPECT_EQ(CDbl(70000), 70000);
  EXPECT_EQ(CDbl(2.5), 2.5);
  EXPECT_EQ(CDbl(Date{46086.5}), 46086.5);
}

TEST(Conversions, NullObjectsAndMissingArgumentsRaiseTheirErrors) {
  const Variant object = std::make_shared<Object>();
  const auto check = [&](const char* name, auto convert) {
    EXPECT_EQ(errorNumberOf([&] { convert(Null); }), error::InvalidUseOfNull) << name;
    EXPECT_EQ(errorNumberOf([&] { convert(Missing); }), error::TypeMismatch) << name;
    EXPECT_EQ(errorNumberOf([&] { convert(object); }), error::TypeMismatch) << name;
  };
  check("CStr", CStr);
  check("CInt", CInt);
  check("CLng", CLng);
  check("CDbl", CDbl);
  check("CBool", CBool);
  check("CDate", CDate);
  check("Val", [](const Variant& value) { return Val(value); });
}

TEST(CLng, RoundsHalfToEven) {
  struct Row {
    double value;
    std::int32_t whole;
  };
  const Row rows[] = {{0.5, 0},
                      {1.5, 2},
                      {2.5, 2},
                      {3.5, 4},
                      {-0.5, 0},
                      {-1.5, -2},
                      {-2.5, -2},
                      {0.49, 0},
                      {0.51, 1},
                      {2.4999, 2},
                      {-2.6, -3},
                      {1e9, 1000000000},
                      {2147483647.4, 2147483647},
                      {-2147483648.5, -2147483647 - 1}};
  for (const Row& row : rows) EXPECT_EQ(CLng(row.value), row.whole) << row.value;
  EXPECT_EQ(CLng(u"2,5"), 2);
  EXPECT_EQ(CLng(u"3,5"), 4);
  EXPECT_EQ(CLng(true), -1);
  EXPECT_EQ(CLng(Variant()), 0);
}

TEST(CLng, OutOfRangeOverflows) {
  for (const double value : {2147483647.5, 2147483648.0, -2147483649.0, 1e300, std::nan("")}) {
    EXPECT_EQ(errorNumberOf([&] { CLng(value); }), error::Overflow) << value;
  }
  EXPECT_EQ(errorNumberOf([&] { CLng(u"99999999999"); }), error::Overflow);
  EXPECT_EQ(errorNumberOf([&] { CLng(u""); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([&] { CLng(u"x"); }), error::TypeMismatch);
}

TEST(CInt, HoldsSixteenBits) {
  EXPECT_EQ(CInt(32767.4), 32767);
  EXPECT_EQ(CInt(-32768.5), -32768);
  EXPECT_EQ(CInt(u"2,5"), 2);
  EXPECT_EQ(errorNumberOf([] { CInt(32767.5); }), error::Overflow);
  EXPECT_EQ(errorNumberOf([] { CInt(u"-32769"); }), error::Overflow);
}

TEST(CBool, KnowsTheWordsOfTheCountryAndNumbers) {
  for (const char16_t* text :
       {u"True", u"TRUE", u"true", u"Wahr", u"WAHR", u"wahr", u"1", u"-1", u"0,5", u" 7 "}) {
    EXPECT_TRUE(CBool(text)) << toUtf8(text);
  }
  for (const char16_t* text : {u"False", u"false", u"Falsch", u"FALSCH", u"0", u"0,0", u"-0"}) {
    EXPECT_FALSE(CBool(text)) << toUtf8(text);
  }
  for (const char16_t* text : {u"", u" ", u"ja", u"Wahr ", u"T"}) {
    EXPECT_EQ(errorNumberOf([&] { CBool(text); }), error::TypeMismatch) << toUtf8(text);
  }
  EXPECT_TRUE(CBool(true));
  EXPECT_TRUE(CBool(0.1));
  EXPECT_FALSE(CBool(0));
  EXPECT_FALSE(CBool(Variant()));
}

TEST(IsNumeric, AnswersForEveryKind) {
  EXPECT_TRUE(IsNumeric(Variant()));
  EXPECT_TRUE(IsNumeric(true));
  EXPECT_TRUE(IsNumeric(std::int16_t{1}));
  EXPECT_TRUE(IsNumeric(1));
  EXPECT_TRUE(IsNumeric(1.5));
  EXPECT_FALSE(IsNumeric(Null));
  EXPECT_FALSE(IsNumeric(Missing));
  EXPECT_FALSE(IsNumeric(Date{1}));
  EXPECT_FALSE(IsNumeric(std::make_shared<Object>()));
}

TEST(Val, ReadsTheLeadingNumber) {
  const NumberText rows[] = {
      {u"", 0},
      {u"abc", 0},
      {u"12a", 12},
      {u"1,5", 1},
      {u".5", 0.5},
      {u"1.5", 1.5},
      {u"1..1", 1},
      {u"1.1.1", 1.1},
      {u"--5", 0},
      {u"-5", -5},
      {u"- 5", -5},
      {u"+5", 5},
      {u"5-", 5},
      {u" 1 2,3", 12},
      {u"1. 1", 1.1},
      {u"1\t2\r\n3", 123},
      {u"12d2", 1200},
      {u"12e2", 1200},
      {u"12E-2", 0.12},
      {u"12D+2", 1200},
      {u"1e", 1},
      {u"1eA", 1},
      {u"1e+", 1},
      {u"1e+1+", 10},
      {u"1 e 2", 100},
      {u"55%", 55},
      {u"50.5%", 50.5},
      {u"1.0&", 1},
      {u"40000%", 40000},
      {u"5!", 5},
      {u"5#", 5},
      {u"5@", 5},
      {u".", 0},
      {u"-", 0},
      {u"-.", 0},
      {u"&H10", 16},
      {u"&h10", 16},
      {u"& H 1 0", 16},
      {u"&HFFFF", -1},
      {u"&HFFFFFFFF", -1},
      {u"&HFFFF&", 65535},
      {u"&HFFFF%", -1},
      {u"&H7FFF", 32767},
      {u"&H8000", -32768},
      {u"&H10000", 65536},
      {u"&O17", 15},
      {u"&o17", 15},
      {u"&H1G", 1},
      {u"&", 0},
      {u"&5", 0},
      {u"&HG", 0},
      {u"1e-400", 0},
      {u"\u00A05", 0},
      {u"1.234,5", 1.234},
  };
  for (const NumberText& row : rows) EXPECT_EQ(Val(row.text), row.number) << toUtf8(row.text);
}

TEST(Val, TooLargeOverflows) {
  for (const char16_t* text : {u"1e309", u"-1d309", u"&H100000000"}) {
    EXPECT_EQ(errorNumberOf([&] { Val(text); }), error::Overflow) << toUtf8(text);
  }
}

TEST(Val, OtherKindsAreReadAsTheirText) {
  EXPECT_EQ(Val(Variant(7)), 7);
  EXPECT_EQ(Val(Variant(1.5)), 1) << "the decimal comma of \"1,5\" ends the number";
  EXPECT_EQ(Val(Variant(true)), 0) << "\"Wahr\"";
  EXPECT_EQ(Val(Variant()), 0);
  EXPECT_EQ(Val(Variant(u"12a")), 12);
}

TEST(Val, TakesEverySortOfText) {
  const String text = u"12";
  EXPECT_EQ(Val(text), 12);
  EXPECT_EQ(Val(StringView(text)), 12);
  EXPECT_EQ(Val(text + u"3"), 123);
}

TEST(IntFixAbs, KeepTheKind) {
  struct Row {
    Variant value, lower, cut, absolute;
  };
  const Row rows[] = {
      {2.5, 2.0, 2.0, 2.5},
      {-2.5, -3.0, -2.0, 2.5},
      {-3.0, -3.0, -3.0, 3.0},
      {-7, -7, -7, 7},
      {std::int16_t{-7}, std::int16_t{-7}, std::int16_t{-7}, std::int16_t{7}},
      {true, std::int16_t{-1}, std::int16_t{-1}, std::int16_t{1}},
      {Variant(), std::int16_t{0}, std::int16_t{0}, std::int16_t{0}},
      {Null, Null, Null, Null},
      {u"-2,5", -3.0, -2.0, 2.5},
      {Date{46086.75}, Date{46086}, Date{46086}, Date{46086.75}},
      {std::int16_t{-32768}, std::int16_t{-32768}, std::int16_t{-32768}, 32768},
      {-2147483647 - 1, -2147483647 - 1, -2147483647 - 1, 2147483648.0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Int(row.value), row.lower) << testing::PrintToString(row.value);
    EXPECT_EQ(Fix(row.value), row.cut) << testing::PrintToString(row.value);
    EXPECT_EQ(Abs(row.value), row.absolute) << testing::PrintToString(row.value);
  }
  EXPECT_EQ(errorNumberOf([] { Int(u"x"); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([] { Fix(u""); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([] { Abs(Missing); }), error::TypeMismatch);
}

TEST(NumberText, ShowsFifteenSignificantDigits) {
  struct Row {
    double number;
    const char16_t* text;
  };
  const Row rows[] = {
      {0, u"0"},
      {-0.0, u"0"},
      {5, u"5"},
      {-5, u"-5"},
      {1234.5, u"1234,5"},
      {-0.5, u"-0,5"},
      {0.1 + 0.2, u"0,3"},
      {1.0 / 3, u"0,333333333333333"},
      {2.0 / 3, u"0,666666666666667"},
      {1000000, u"1000000"},
      {123456789012345, u"123456789012345"},
      {999999999999999, u"999999999999999"},
      {999999999999999.9, u"1E+15"},
      {1e15, u"1E+15"},
      {-1.5e15, u"-1,5E+15"},
      {1234567890123456789.0, u"1,23456789012346E+18"},
      {1e100, u"1E+100"},
      {0.01, u"0,01"},
      {0.0001, u"0,0001"},
      {0.00001, u"0,00001"},
      {1e-15, u"0,000000000000001"},
      {1e-16, u"1E-16"},
      {1.0 / 30, u"3,33333333333333E-02"},
      {1.7976931348623157e308, u"1,79769313486232E+308"},
      {5e-324, u"4,94065645841247E-324"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(numberText(row.number), row.text);
    EXPECT_EQ(CStr(row.number), row.text);
  }
  EXPECT_EQ(errorNumberOf([] { numberText(std::numeric_limits<double>::infinity()); }), error::Overflow);
}

TEST(NumberText, IsReadBackAsTheSameNumber) {
  for (const double number : {0.1, 1234.5, -99.99, 1e15, 1e-16, 123456789012345.0, 2.5e-7}) {
    EXPECT_EQ(CDbl(numberText(number)), number) << number;
  }
}

}  // namespace
}  // namespace zqn
