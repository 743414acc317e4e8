// SPDX-License-Identifier: MIT
#include "runtime/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "runtime/ascii.h"

namespace zqn {

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();

using ascii::isDigit;
bool isExponentSign(char16_t unit) { return unit == u'e' || unit == u'E' || unit == u'd' || unit == u'D'; }
bool isWhite(char16_t unit) { return ascii::isBlank(unit) || unit == u'\u00A0'; }

int digitValue(char16_t unit) {
  if (isDigit(unit)) return unit - u'0';
  const char16_t lower = unit | 0x20;
  return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : 16;
}

// What may stand on either side of a number: blanks, one sign, one pair of parentheses, one currency sign.
class Surroundings {
 public:
  explicit Surroundings(const Locale& locale) : locale_(locale) {}

  void takeLead(StringView& text) {
    while (takeOne(text, u'(')) {
    }
  }
  /// True when nothing but what belongs to a number is left.
  bool takeTrail(StringView& text) {
    while (takeOne(text, u')')) {
    }
    return text.empty() && parentheses_ != 1 && !(parentheses_ == 2 && signed_);
  }
  bool negative() const { return negative_; }

 private:
  bool takeOne(StringView& text, char16_t parenthesis) {
    if (text.empty()) return false;
    const char16_t unit = text.front();
    if (isWhite(unit)) {
      text.remove_prefix(1);
      return true;
    }
    if ((unit == u'+' || unit == u'-') && !signed_) {
      signed_ = true;
      negative_ = unit == u'-';
    } else if (unit == parenthesis && parentheses_ == (parenthesis == u'(' ? 0 : 1)) {
      ++parentheses_;
      negative_ = true;
    } else if (!currency_ && !locale_.currency.empty() && text.starts_with(locale_.currency)) {
      currency_ = true;
      text.remove_prefix(locale_.currency.size() - 1);
    } else {
      return false;
    }
    text.remove_prefix(1);
    return true;
  }

  const Locale& locale_;
  bool signed_ = false, negative_ = false, currency_ = false;
  int parentheses_ = 0;
};

// Whether a number too large or too small for a Double is the former.
bool isLarge(std::string_view ascii) {
  const std::size_t exponentAt = std::min(ascii.find('e'), ascii.size());
  const std::size_t point = std::min(ascii.find('.'), exponentAt);
  const std::size_t first = ascii.find_first_of("123456789");
  const auto magnitude = static_cast<long long>(point) - static_cast<long long>(first);

  std::string_view exponentText = ascii.substr(std::min(exponentAt + 1, ascii.size()));
  if (exponentText.starts_with('+')) exponentText.remove_prefix(1);
  long long exponent = 0;
  const auto [end, failure] =
      std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
  if (failure == std::errc::result_out_of_range) return !exponentText.starts_with('-');
  return magnitude + exponent > 0;
}

// The value of "12.5e3", well-formed: too large is infinite, too small is 0.
double decimalValue(std::string_view ascii) {
  double value = 0;
  const auto [end, failure] = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
  if (failure != std::errc::result_out_of_range) return value;
  return isLarge(ascii) ? Infinite : 0;
}

struct Signs {
  char16_t decimal;
  char16_t thousands;
};
constexpr Signs plainSigns{u'.', u'\0'};

// Digits with thousands signs, the decimal sign and the exponent, as decimalValue takes them. "" when there
// is no digit.
std::string takeDecimal(StringView& text, Signs signs) {
  std::string ascii;
  bool fraction = false;
  bool any = false;
  for (; !text.empty(); text.remove_prefix(1)) {
    const char16_t unit = text.front();
    if (isDigit(unit)) {
      ascii.push_back(static_cast<char>(unit));
      any = true;
    } else if (unit == signs.decimal && !fraction) {
      if (!any) ascii.push_back('0');
      ascii.push_back('.');
      fraction = true;
    } else if (unit != signs.thousands || fraction) {
      break;
    }
  }
  if (!any) return {};
  if (ascii.back() == '.') ascii.push_back('0');
  if (text.empty() || !isExponentSign(text.front())) return ascii;

  const std::size_t sign = text.size() > 1 && (text[1] == u'+' || text[1] == u'-') ? 2 : 1;
  std::size_t end = sign;
  while (end < text.size() && isDigit(text[end])) ++end;
  if (end == sign) return ascii;
  ascii.push_back('e');
  if (sign == 2) ascii.push_back(static_cast<char>(text[1]));
  for (std::size_t i = sign; i < end; ++i) ascii.push_back(static_cast<char>(text[i]));
  text.remove_prefix(end);
  return ascii;
}

// &H and &O with the suffix & or %. No value when there is none; infinite beyond 32 bits.
std::optional<double> takeRadixNumber(StringView& text) {
  if (text.size() < 3 || text[0] != u'&') return std::nullopt;
  const char16_t kind = text[1] | 0x20;
  const int radix = kind == u'h' ? 16 : kind == u'o' ? 8 : 0;
  if (radix == 0 || digitValue(text[2]) >= radix) return std::nullopt;

  std::size_t end = 2;
  std::uint64_t bits = 0;
  bool tooLarge = false;
  for (; end < text.size() && digitValue(text[end]) < radix; ++end) {
    bits = bits * static_cast<unsigned>(radix) + static_cast<unsigned>(digitValue(text[end]));
    tooLarge = tooLarge || bits > 0xFFFFFFFF;
    bits &= 0xFFFFFFFF;
  }
  const char16_t suffix = end < text.size() ? text[end] : u'\0';
  if (suffix == u'&' || suffix == u'%') ++end;
  text.remove_prefix(end);
  if (tooLarge || (suffix == u'%' && bits > 0xFFFF)) return Infinite;
  // Without a suffix the shorter width holds, so &HFFFF is -1.
  if (suffix != u'&' && bits <= 0xFFFF) return static_cast<std::int16_t>(bits);
  return static_cast<std::int32_t>(bits);
}

}  // namespace

double takeLeadingNumber(StringView& text) {
  if (const std::optional<double> value = takeRadixNumber(text)) return *value;
  const bool negative = text.starts_with(u'-');
  if (negative || text.starts_with(u'+')) text.remove_prefix(1);
  const std::string decimal = takeDecimal(text, plainSigns);
  const double value = decimal.empty() ? 0 : decimalValue(decimal);
  return negative ? -value : value;
}

std::optional<double> readNumber(StringView text, const Locale& locale) {
  Surroundings around(locale);
  around.takeLead(text);
  std::optional<double> value = takeRadixNumber(text);
  if (!value) {
    const std::string decimal = takeDecimal(text, {locale.decimal, locale.thousands});
    if (decimal.empty()) return std::nullopt;
    value = decimalValue(decimal);
  }
  if (!around.takeTrail(text)) return std::nullopt;
  return around.negative() ? -*value : *value;
}

Decimal Decimal::of(double value) {
  if (!std::isfinite(value)) throw RuntimeError(error::Overflow);
  Decimal decimal;
  if (value == 0) return decimal;

  char text[32];
  const auto [end, failure] = std::to_chars(std::begin(text), std::end(text), std::abs(value),
                                            std::chars_format::scientific, Decimal::SignificantDigits - 1);
  const std::string_view scientific(text, static_cast<std::size_t>(end - text));
  const std::size_t exponentAt = scientific.find('e');
  decimal.negative = value < 0;
  decimal.digits = scientific.front();
  decimal.digits += scientific.substr(2, exponentAt - 2);
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  int exponent = 0;
  const char* const exponentText = scientific.data() + exponentAt + 1;
  std::from_chars(exponentText + (*exponentText == '+'), end, exponent);
  decimal.point = exponent + 1;
  return decimal;
}

void Decimal::round(int places) {
  const int kept = point + places;
  if (kept >= static_cast<int>(digits.size())) return;
  const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
  digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
  if (up) {
    while (!digits.empty() && digits.back() == '9') digits.pop_back();
    if (digits.empty()) {
      digits.assign(1, '1');
      ++point;
    } else {
      ++digits.back();
    }
  }
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.empty()) *this = Decimal();
}

std::string Decimal::whole() const {
  if (point <= 0) return {};
  std::string text = digits.substr(0, static_cast<std::size_t>(point));
  text.resize(static_cast<std::size_t>(point), '0');
  return text;
}

std::string Decimal::fraction(int places) const {
  std::string text(static_cast<std::size_t>(std::max(-point, 0)), '0');
  if (point < static_cast<int>(digits.size()))
    text += digits.substr(static_cast<std::size_t>(std::max(point, 0)));
  text.resize(static_cast<std::size_t>(places), '0');
  return text;
}

}  // namespace zqn
