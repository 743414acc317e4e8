// SPDX-License-Identifier: MIT
#include "forms/tdb_number.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "runtime/convert.h"
#include "runtime/locale.h"

namespace zqn {

namespace {

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

std::size_t countDigits(StringView pattern) {
  return static_cast<std::size_t>(
      std::ranges::count_if(pattern, [](char16_t c) { return c == u'#' || c == u'0'; }));
}

}  // namespace

TDBNumber::TDBNumber(Form& form, const ControlDesign& design, int tabIndex)
    : TextEntry(form, design, tabIndex), format_(split(design.other.Format)) {
  const auto point = format_.positive.find(u'.');
  digits_ = countDigits(StringView(format_.positive).substr(0, point));
  decimals_ = point == String::npos ? 0 : countDigits(StringView(format_.positive).substr(point));
  show(displayText());
}

TDBNumber::Sections TDBNumber::split(StringView format) {
  std::vector<String> parts = Split(format, u";");
  parts.resize(4);
  return {parts[0], parts[1], parts[2], parts[3]};
}

// ---- value

void TDBNumber::Value(const Variant& value) {
  Variant next = Null;
  if (!value.isNull()) {
    const double number = value.isEmpty() ? 0 : CDbl(value);
    if (std::abs(number) >= std::pow(10.0, static_cast<double>(digits_)) ||
        (number < 0 && format_.negative.empty()))
      throw RuntimeError(error::InvalidPropertyValue);
    next = number;
  }
  value_ = std::move(next);
  show(focused_ ? editText() : displayText());
  ValueChange.raise();
}

String TDBNumber::displayText() const {
  if (value_.isNull()) return format_.null;
  const double number = *value_.as<double>();
  if (number == 0) return format_.zero;
  const bool negative = number < 0;
  const StringView pattern = negative ? format_.negative : format_.positive;
  // The parentheses of a negative pattern stand around the digits.
  const auto first = pattern.find_first_of(u"#0");
  const auto last = pattern.find_last_of(u"#0");
  if (first == StringView::npos) return numberText(number);
  return String(pattern.substr(0, first)) +
         Format(std::abs(number), pattern.substr(first, last - first + 1)) + String(pattern.substr(last + 1));
}

String TDBNumber::editText() const {
  if (value_.isNull()) return {};
  const double number = *value_.as<double>();
  return number < 0 ? u"-" + numberText(-number) : numberText(number);
}

void TDBNumber::show(StringView text) {
  const bool before = std::exchange(showing_, true);
  assignText(text);
  showing_ = before;
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

bool TDBNumber::ownKey(const KeyStroke& stroke) {
  KeyStroke typed = stroke;
  typed.character = typedAs(stroke.character);
  return TextEntry::ownKey(typed);
}

void TDBNumber::edited() {
  if (showing_) return;
  Change.raise();
  const bool hasDigit = std::ranges::any_of(Text(), isDigit);
  Variant next = hasDigit ? Variant(CDbl(Text())) : Variant(Null);
  if (next == value_) return;
  value_ = std::move(next);
  ValueChange.raise();
}

void TDBNumber::focusEntered() {
  focused_ = true;
  show(editText());
  userSelected(0, static_cast<int>(Text().size()));
  changed();
}

void TDBNumber::focusLeft() {
  focused_ = false;
  show(displayText());
}

const PropertyEntry* TDBNumber::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Value", [](const Control& c) { return static_cast<const TDBNumber&>(c).Value(); },
       [](Control& c, const Variant& value) { static_cast<TDBNumber&>(c).Value(value); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : TextEntry::findProperty(name);
}

}  // namespace zqn
