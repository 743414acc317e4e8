// SPDX-License-Identifier: MIT
#include "ado/sql.h"

#include <algorithm>
#include <cmath>

#include "runtime/ascii.h"
#include "runtime/convert.h"
#include "runtime/digits.h"

namespace zqn::ado::sql {

namespace {

bool staysInside(StringView value) { return value.find_first_of(StringView(u"'\0", 2)) == StringView::npos; }

bool isNumberText(StringView text) {
  const auto skip = [&](auto condition) {
    const auto stop = std::find_if_not(text.begin(), text.end(), condition);
    const auto count = static_cast<std::size_t>(stop - text.begin());
    text.remove_prefix(count);
    return count;
  };
  const auto blank = [](char16_t unit) { return unit == u' '; };
  skip(blank);
  if (!text.empty() && (text.front() == u'+' || text.front() == u'-')) text.remove_prefix(1);
  skip(blank);
  std::size_t digits = skip(ascii::isDigit);
  if (!text.empty() && text.front() == u'.') {
    text.remove_prefix(1);
    digits += skip(ascii::isDigit);
  }
  skip(blank);
  return digits > 0 && text.empty();
}

}  // namespace

Text& Text::operator+=(const Text& right) {
  text_ += right.text_;
  valid_ = valid_ && right.valid_;
  criterionOnly_ = criterionOnly_ || right.criterionOnly_;
  return *this;
}

Text value(StringView text) {
  Text literal;
  literal.text_.reserve(text.size() + 2);
  literal.text_.append(1, u'\'').append(text).append(1, u'\'');
  literal.valid_ = staysInside(text);
  return literal;
}

Text value(const Variant& value) {
  if (const String* text = value.as<String>()) return sql::value(StringView(*text));
  return sql::value(StringView(concatenate(value)));
}

Text number(const Variant& value) {
  Text literal;
  if (const double* real = value.as<double>()) {
    literal.text_ = digits(*real);
    literal.valid_ = std::isfinite(*real);
  } else if (value.isNumber()) {
    literal.text_ = digits(CDbl(value));
  } else {
    literal.text_ = concatenate(value);
    literal.valid_ = value.isString() && isNumberText(literal.text_);
  }
  return literal;
}

Text bare(StringView text) {
  Text literal;
  literal.text_ = text;
  literal.valid_ = staysInside(text);
  literal.criterionOnly_ = true;
  return literal;
}

}  // namespace zqn::ado::sql
