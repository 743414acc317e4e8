// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <span>

#include "runtime/convert.h"
#include "runtime/date_text.h"
#include "runtime/digits.h"
#include "runtime/locale.h"
#include "runtime/number_text.h"

namespace zqn {

namespace {

// A unit of a pattern: a code to be replaced, or a literal (quoted, or behind a backslash).
struct Symbol {
  char16_t unit;
  bool literal = false;

  bool is(char16_t code) const { return !literal && unit == code; }
  bool isDigit() const { return is(u'0') || is(u'#'); }
};
using Symbols = std::span<const Symbol>;

std::vector<Symbol> symbolsOf(StringView pattern) {
  std::vector<Symbol> symbols;
  bool quoted = false;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] == u'"') {
      quoted = !quoted;
    } else if (!quoted && pattern[i] == u'\\' && i + 1 < pattern.size()) {
      symbols.push_back({pattern[++i], true});
    } else {
      symbols.push_back({pattern[i], quoted});
    }
  }
  return symbols;
}

std::vector<Symbols> sectionsOf(Symbols symbols) {
  std::vector<Symbols> sections;
  for (;;) {
    const auto end = std::ranges::find_if(symbols, [](Symbol symbol) { return symbol.is(u';'); });
    const auto length = static_cast<std::size_t>(end - symbols.begin());
    sections.push_back(symbols.first(length));
    if (end == symbols.end()) return sections;
    symbols = symbols.subspan(length + 1);
  }
}

bool isDateCode(Symbol symbol) {
  return !symbol.literal && StringView(u"dmyhns").find(lowerUnit(symbol.unit)) != StringView::npos;
}

bool isDatePattern(Symbols symbols) {
  const auto code = std::ranges::find_if(
      symbols, [](Symbol symbol) { return symbol.isDigit() || symbol.is(u'%') || isDateCode(symbol); });
  return code != symbols.end() && isDateCode(*code);
}

String padded(int number, std::size_t width) {
  const String text = digits(number);
  return String(width > text.size() ? width - text.size() : 0, u'0') + text;
}

String formatDate(Date date, Symbols symbols) {
  const CivilDate at = civil(date);
  String text;
  bool behindHour = false;
  while (!symbols.empty()) {
    const Symbol symbol = symbols.front();
    if (!isDateCode(symbol)) {
      text += symbol.is(u'/') ? Locale::current().dateSeparator : symbol.unit;
      symbols = symbols.subspan(1);
      continue;
    }
    const char16_t code = lowerUnit(symbol.unit);
    const auto end = std::ranges::find_if(
        symbols, [&](Symbol next) { return next.literal || lowerUnit(next.unit) != code; });
    const auto length = static_cast<std::size_t>(end - symbols.begin());
    const std::size_t width = std::min<std::size_t>(length, 2);
    switch (code) {
      case u'd':
        text += padded(at.day, width);
        break;
      case u'm':
        text += padded(behindHour ? at.minute : at.month, width);
        break;
      case u'y':
        text += length > 2 ? padded(at.year, 4) : padded(at.year % 100, 2);
        break;
      case u'h':
        text += padded(at.hour, width);
        break;
      case u'n':
        text += padded(at.minute, width);
        break;
      default:
        text += padded(at.second, width);
        break;
    }
    behindHour = code == u'h';
    symbols = symbols.subspan(length);
  }
  return text;
}

// One section of a numeric pattern, taken apart.
class NumberSection {
 public:
  explicit NumberSection(Symbols symbols) : symbols_(symbols) {
    bool fraction = false;
    bool comma = false;
    for (const Symbol symbol : symbols_) {
      if (symbol.is(u'.')) fraction = true;
      if (symbol.is(u'%')) ++percents_;
      if (symbol.is(u',')) comma = true;
      if (!symbol.isDigit()) continue;
      if (fraction) {
        ++places_;
        if (symbol.unit == u'0') leastPlaces_ = places_;
        continue;
      }
      grouped_ = grouped_ || (comma && slots_ > 0);
      ++slots_;
      if (symbol.unit == u'0' || leastDigits_ > 0) ++leastDigits_;
    }
  }

  /// Writes the number without its sign.
  String write(Decimal decimal) const;
  /// What the section shows of the number.
  Decimal rounded(Decimal decimal) const {
    if (!decimal.digits.empty()) decimal.point += 2 * percents_;
    decimal.round(places_);
    return decimal;
  }

 private:
  Symbols symbols_;
  int percents_ = 0;
  int places_ = 0, leastPlaces_ = 0;
  int slots_ = 0, leastDigits_ = 0;
  bool grouped_ = false;
};

String NumberSection::write(Decimal decimal) const {
  const Locale& locale = Locale::current();
  decimal = rounded(decimal);
  std::string whole = decimal.whole();
  if (whole.size() < static_cast<std::size_t>(leastDigits_)) {
    whole.insert(0, static_cast<std::size_t>(leastDigits_) - whole.size(), '0');
  }
  std::string fraction = decimal.fraction(places_);
  while (fraction.size() > static_cast<std::size_t>(leastPlaces_) && fraction.back() == '0')
    fraction.pop_back();

  String text;
  std::size_t written = 0;
  // Writes the digits in front of the decimal sign until `left` of them remain.
  const auto writeWhole = [&](std::size_t left) {
    for (; written + left < whole.size(); ++written) {
      text += static_cast<char16_t>(whole[written]);
      const std::size_t behind = whole.size() - written - 1;
      if (grouped_ && behind > 0 && behind % 3 == 0) text += locale.thousands;
    }
  };
  auto slotsLeft = static_cast<std::size_t>(slots_);
  std::size_t placesWritten = 0;
  bool behindPoint = false;
  for (const Symbol symbol : symbols_) {
    if (symbol.isDigit()) {
      if (!behindPoint) {
        writeWhole(--slotsLeft);
      } else if (placesWritten < fraction.size()) {
        text += static_cast<char16_t>(fraction[placesWritten++]);
      }
    } else if (symbol.is(u'.') && !behindPoint) {
      writeWhole(0);
      text += locale.decimal;
      behindPoint = true;
    } else if (!symbol.is(u',')) {
      text += symbol.unit;
    }
  }
  return text;
}

String formatNumber(double number, Symbols symbols) {
  const std::vector<Symbols> sections = sectionsOf(symbols);
  // An empty section stands for the first one.
  const auto section = [&](std::size_t index) {
    const bool stated = index < sections.size() && !sections[index].empty();
    return NumberSection(sections[stated ? index : 0]);
  };
  const bool ownNegative = sections.size() > 1 && !sections[1].empty();
  const Decimal decimal = Decimal::of(number);
  if (number == 0) return section(2).write(decimal);
  if (number > 0) return section(0).write(decimal);
  const NumberSection negative = section(1);
  // What is rounded to zero shows no sign.
  const bool sign = !ownNegative && negative.rounded(decimal).negative;
  String text(sign ? 1 : 0, u'-');
  return text.append(negative.write(decimal));
}

}  // namespace

String Format(const Variant& value, StringView pattern) {
  const std::vector<Symbol> symbols = symbolsOf(pattern);
  if (value.isNull()) {
    const std::vector<Symbols> sections = sectionsOf(symbols);
    return sections.size() > 3 ? NumberSection(sections[3]).write(Decimal()) : String();
  }
  const String* text = value.as<String>();
  if (symbols.empty() || value.isEmpty() || (text && text->empty())) return CStr(value);

  if (isDatePattern(symbols)) {
    if (text && !IsDate(value)) return *text;
    return formatDate(CDate(value), symbols);
  }
  if (text && !IsNumeric(value)) return *text;
  return formatNumber(CDbl(value), symbols);
}

}  // namespace zqn
