// SPDX-License-Identifier: MIT
#include "forms/tdb_number.h"

#include <algorithm>
#include <cmath>

#include "runtime/ascii.h"
#include "runtime/convert.h"
#include "runtime/locale.h"

namespace zqn {

namespace {

using ascii::isDigit;

std::size_t countDigits(StringView pattern) {
  return static_cast<std::size_t>(
      std::ranges::count_if(pattern, [](char16_t c) { return c == u'#' || c == u'0'; }));
}

/// The digits of a pattern, without what stands around them: the parentheses of a negative one.
StringView digitsOf(StringView pattern) {
  const auto first = pattern.find_first_of(u"#0");
  if (first == StringView::npos) return {};
  return pattern.substr(first, pattern.find_last_of(u"#0") - first + 1);
}

}  // namespace

TDBNumber::TDBNumber(Form& form, const ControlDesign& design, int tabIndex)
    : ValueEntry(form, design, tabIndex), format_(split(design.other.Format)) {
  const auto point = format_.positive.find(u'.');
  digits_ = countDigits(StringView(format_.positive).substr(0, point));
  decimals_ = point == String::npos ? 0 : countDigits(StringView(format_.positive).substr(point));
  showValue();
}

TDBNumber::Sections TDBNumber::split(StringView format) {
  std::vector<String> parts = Split(format, u";");
  parts.resize(4);
  return {parts[0], parts[1], parts[2], parts[3]};
}

void TDBNumber::Value(const Variant& value) {
  const Variant before = Value();
  assignValue(value.isNull() ? Variant(Null) : Variant(value.isEmpty() ? 0.0 : CDbl(value)));
  // An assignment of the same number tells, too: what is built of several numbers may have been blanked
  // meanwhile.
  if (Value() == before) ValueChange.raise();
}

// ---- how it looks

String TDBNumber::displayText() const {
  if (Value().isNull()) return format_.null;
  const double number = *Value().as<double>();
  if (number == 0) return format_.zero;
  const StringView pattern = number < 0 ? format_.negative : format_.positive;
  const StringView digits = digitsOf(pattern);
  if (digits.empty()) return numberText(number);
  const auto front = static_cast<std::size_t>(digits.data() - pattern.data());
  return String(pattern.substr(0, front)) + Format(std::abs(number), digits) +
         String(pattern.substr(front + digits.size()));
}

String TDBNumber::editText() const {
  if (Value().isNull()) return {};
  const double number = *Value().as<double>();
  // Parentheses cannot be typed.
  if (number < 0 && !format_.negative.empty())
    return u"-" + Format(std::abs(number), digitsOf(format_.negative));
  return displayText();
}

// ---- a person types

char16_t TDBNumber::typedAs(char16_t character) const {
  return character == u'.' || character == u',' ? Locale::current().decimal : character;
}

bool TDBNumber::accepts(StringView text) const {
  if (!text.empty() && text.front() == u'-' && !format_.negative.empty()) text.remove_prefix(1);
  const auto sign = text.find(Locale::current().decimal);
  const StringView whole = text.substr(0, sign);
  const StringView fraction = sign == StringView::npos ? StringView() : text.substr(sign + 1);
  if (sign != StringView::npos && decimals_ == 0) return false;
  return whole.size() <= digits_ && fraction.size() <= decimals_ && std::ranges::all_of(whole, isDigit) &&
         std::ranges::all_of(fraction, isDigit);
}

std::optional<Variant> TDBNumber::read(StringView typed) const {
  // A sign alone is as good as nothing.
  Variant number = Null;
  if (std::ranges::any_of(typed, isDigit)) number = CDbl(String(typed));
  return number;
}

const PropertyEntry* TDBNumber::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Value", [](const Control& c) { return static_cast<const TDBNumber&>(c).Value(); },
       [](Control& c, const Variant& value) { static_cast<TDBNumber&>(c).Value(value); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : ValueEntry::findProperty(name);
}

}  // namespace zqn
