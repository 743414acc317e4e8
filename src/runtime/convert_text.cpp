// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>

#include "runtime/convert.h"
#include "runtime/digits.h"
#include "runtime/locale.h"
#include "runtime/number_text.h"

namespace zqn {

namespace {

String widened(std::string_view ascii) { return String(ascii.begin(), ascii.end()); }

String dateText(Date date) {
  const CivilDate at = civil(date);
  const bool hasTime = at.hour != 0 || at.minute != 0 || at.second != 0;
  const bool hasDay = at.year != 1899 || at.month != 12 || at.day != 30;
  const String time = hasTime || !hasDay ? Format(date, u"hh:nn:ss") : String();
  if (!hasDay) return time;
  const String day = Format(date, Locale::current().shortDate);
  return hasTime ? day + u' ' + time : day;
}

template <char16_t (*Fold)(char16_t) noexcept>
String folded(StringView text) {
  String result(text);
  std::ranges::transform(result, result.begin(), Fold);
  return result;
}

}  // namespace

String CStr(const Variant& value) {
  const Locale& locale = Locale::current();
  switch (value.kind()) {
    case Variant::Kind::Empty:
      return {};
    case Variant::Kind::Boolean:
      return *value.as<bool>() ? locale.trueText : locale.falseText;
    case Variant::Kind::Integer:
      return digits(*value.as<std::int16_t>());
    case Variant::Kind::Long:
      return digits(*value.as<std::int32_t>());
    case Variant::Kind::Double:
      return numberText(*value.as<double>());
    case Variant::Kind::Date:
      return dateText(*value.as<Date>());
    case Variant::Kind::String:
      return *value.as<String>();
    case Variant::Kind::Null:
      throw RuntimeError(error::InvalidUseOfNull);
    case Variant::Kind::Object:
    case Variant::Kind::Missing:
      break;
  }
  throw RuntimeError(error::TypeMismatch);
}

String concatenate(const Variant& value) { return value.isNull() ? String() : CStr(value); }

String numberText(double value) {
  const Decimal decimal = Decimal::of(value);
  if (decimal.digits.empty()) return u"0";

  String text;
  if (decimal.negative) text += u'-';
  const int digits = static_cast<int>(decimal.digits.size());
  const int places = std::max(digits - decimal.point, 0);
  if (decimal.point <= Decimal::SignificantDigits && places <= Decimal::SignificantDigits) {
    const std::string whole = decimal.whole();
    text += whole.empty() ? u"0" : widened(whole);
    if (places > 0) text += Locale::current().decimal + widened(decimal.fraction(places));
    return text;
  }
  const int exponent = decimal.point - 1;
  text += widened(decimal.digits.substr(0, 1));
  if (digits > 1) text += Locale::current().decimal + widened(decimal.digits.substr(1));
  text += exponent < 0 ? u"E-" : u"E+";
  if (std::abs(exponent) < 10) text += u'0';
  return text + zqn::digits(std::abs(exponent));
}

String Trim(StringView text) {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == StringView::npos) return {};
  return String(text.substr(first, text.find_last_not_of(u' ') - first + 1));
}

String UCase(StringView text) { return folded<upperUnit>(text); }

String LCase(StringView text) { return folded<lowerUnit>(text); }

int StrComp(StringView left, StringView right) {
  const int order = Locale::current().compare(left, right);
  return (order > 0) - (order < 0);
}

std::size_t InStr(StringView text, StringView needle) { return text.find(needle); }

String Replace(StringView text, StringView from, StringView to) {
  if (from.empty()) return String(text);
  String result;
  std::size_t start = 0;
  for (std::size_t found; (found = text.find(from, start)) != StringView::npos; start = found + from.size()) {
    result.append(text.substr(start, found - start)).append(to);
  }
  return result.append(text.substr(start));
}

std::vector<String> Split(StringView text, StringView delimiter) {
  if (delimiter.empty()) return {String(text)};
  std::vector<String> parts;
  std::size_t start = 0;
  for (std::size_t found; (found = text.find(delimiter, start)) != StringView::npos;
       start = found + delimiter.size()) {
    parts.emplace_back(text.substr(start, found - start));
  }
  parts.emplace_back(text.substr(start));
  return parts;
}

std::optional<bool> equals(const Variant& left, const Variant& right) {
  using Kind = Variant::Kind;
  const auto isValue = [](const Variant& value) { return value.kind() < Kind::Object; };
  if (!isValue(left) || !isValue(right)) throw RuntimeError(error::TypeMismatch);
  if (left.isNull() || right.isNull()) return std::nullopt;
  if (left.isString() && right.isString()) return *left.as<String>() == *right.as<String>();
  if (left.isString() || right.isString()) {
    const Variant& text = left.isString() ? left : right;
    const Variant& other = left.isString() ? right : left;
    return other.isEmpty() && text.as<String>()->empty();
  }
  return CDbl(left) == CDbl(right);
}

}  // namespace zqn
