// SPDX-License-Identifier: MIT
//
// What depends on country and day, in one place. Every conversion takes it from Locale::current(); a test
// sets the day or the decimal sign once, for a scope:
//
//     Locale fixed = Locale::german();
//     fixed.now = [] { return dateSerial(2026, 3, 5); };
//     Locale::Scope scope(fixed);
#pragma once

#include <array>
#include <functional>
#include <memory>

#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn {

/// Folds one UTF-16 unit to upper case: Latin, Greek and Cyrillic letters; every other unit is itself.
char16_t upperUnit(char16_t unit) noexcept;
char16_t lowerUnit(char16_t unit) noexcept;

/// The order of texts on the embedded database and in criteria: case does not count, accents do, a letter
/// with an accent sorts behind its plain letter; trailing blanks do not count, but a text of blanks only is
/// one blank and greater than the empty text. Below 0, 0 or above 0. Takes UTF-8 or UTF-16; ASCII is compared
/// without conversion.
int compareCollated(StringView left, StringView right) noexcept;
int compareCollated(std::string_view left, std::string_view right) noexcept;
/// Two texts that compare as equal have the same hash.
std::size_t hashCollated(StringView text) noexcept;
/// The same order, but every blank counts: the comparison of the dialog language.
int compareIgnoringCase(StringView left, StringView right) noexcept;

/// Local day and time of the system's clock, in whole seconds.
Date systemNow();

struct Locale {
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

  static Locale german();
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
