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

  char16_t decimal = u',';                        ///< Between the units and the tenths.
  char16_t thousands = u'.';                      ///< Between groups of three digits.
  String currency = u"€";                         ///< Read with a number (CDbl), never written.
  char16_t dateSeparator = u'.';                  ///< Between the numbers of a date.
  DateOrder dateOrder = DateOrder::DayMonthYear;  ///< Of a date of three numbers.
  String shortDate = u"dd.mm.yyyy";               ///< How CStr writes a Date; a pattern of Format.
  String trueText = u"Wahr";                      ///< How CStr writes True.
  String falseText = u"Falsch";                   ///< How CStr writes False.
  /// January to December: what dates are read and written with.
  std::array<String, 12> monthNames = {u"Januar",    u"Februar", u"März",     u"April",
                                       u"Mai",       u"Juni",    u"Juli",     u"August",
                                       u"September", u"Oktober", u"November", u"Dezember"};
  /// January to December: what dates are read and written with.
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
    explicit Scope(Locale locale);  ///< The copy is the current one until the end.
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    struct State;
    std::unique_ptr<State> state_;
  };
};

}  // namespace zqn
