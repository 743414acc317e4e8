// SPDX-License-Identifier: MIT
//
// What depends on country and day, in one place.
#pragma once

#include <array>
#include <functional>
#include <memory>

#include "runtime/collation.h"
#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn {

/// Local day and time of the system's clock, in whole seconds.
Date systemNow();

/// What depends on country and day, in one place. Every conversion takes it from Locale::current(); a test
/// sets the day or the decimal sign once, for a scope:
///
///     Locale fixed = Locale::german();
///     fixed.now = [] { return dateSerial(2026, 3, 5); };
///     Locale::Scope scope(fixed);
struct Locale {
  /// In which order a date of three numbers is read.
  enum class DateOrder { DayMonthYear, MonthDayYear, YearMonthDay };

  char16_t decimal = u',';
  char16_t thousands = u'.';
  String currency = u"€";
  char16_t dateSeparator = u'.';
  DateOrder dateOrder = DateOrder::DayMonthYear;
  String shortDate = u"dd.mm.yyyy";
  String trueText = u"Wahr";
  String falseText = u"Falsch";
  std::array<String, 12> monthNames = {u"Januar",    u"Februar", u"März",     u"April",
                                       u"Mai",       u"Juni",    u"Juli",     u"August",
                                       u"September", u"Oktober", u"November", u"Dezember"};
  std::array<String, 12> shortMonthNames = {u"Jan", u"Feb", u"Mrz", u"Apr", u"Mai", u"Jun",
                                            u"Jul", u"Aug", u"Sep", u"Okt", u"Nov", u"Dez"};
  /// Language-wide text comparison, as StrComp uses it.
  std::function<int(StringView, StringView)> compare = compareIgnoringCase;
  /// The present moment.
  std::function<Date()> now = systemNow;

  /// The default.
  static Locale german();
  /// The one of the innermost Scope, else the German one.
  static const Locale& current() noexcept;

  /// Makes a locale the current one until the end of the scope. Scopes nest; one thread.
  class Scope {
   public:
    explicit Scope(Locale locale);
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    struct State;
    std::unique_ptr<State> state_;
  };
};

}  // namespace zqn
