// SPDX-License-Identifier: MIT
//
// Texts of statements and criteria: values enter them through one function.
#pragma once

#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn::ado::sql {

/// Texts of statements and criteria. They are made by concatenation, and nothing is escaped; but a value
/// enters through one function, which writes the apostrophes around it:
///
///     sql::Text statement = u"SELECT * FROM Vertriebsstati WHERE Status =" + sql::value(Schluessel.Text());
///     // SELECT * FROM Vertriebsstati WHERE Status ='10'
///
/// A value with an apostrophe makes the whole text invalid: Open and Execute then raise -2147217900, Find
/// raises 3001, and nothing reaches the database. So a key can break a statement, and can never smuggle one
/// in.
class Text {
 public:
  /// The empty text; valid.
  Text() = default;
  /// A piece that the program itself wrote. Values that a person or a database supplied go through value,
  /// number or bare.
  Text(StringView written) : text_(written) {}
  Text(String written) : text_(std::move(written)) {}
  Text(const char16_t* written) : text_(written) {}

  /// The plain concatenation, of an invalid text too.
  const String& text() const noexcept { return text_; }
  /// Every value in it stays inside its literal.
  bool valid() const noexcept { return valid_; }
  /// It holds a bare literal: a criterion, and no statement.
  bool criterionOnly() const noexcept { return criterionOnly_; }

  /// Concatenation: valid when both are, and a criterion when either is one.
  Text& operator+=(const Text& right);
  friend Text operator+(Text left, const Text& right) { return std::move(left += right); }

 private:
  friend Text value(StringView text);
  friend Text number(const Variant& value);
  friend Text bare(StringView text);

  String text_;
  bool valid_ = true;
  bool criterionOnly_ = false;
};

/// A text literal, apostrophes included: `'10'`. Invalid when the text holds an apostrophe or U+0000.
Text value(StringView text);
/// The same for the value's text; Null and Empty give `''`, numbers their text by the locale. Error 13 for an
/// object.
Text value(const Variant& value);
inline Text value(const String& text) { return value(StringView(text)); }
inline Text value(const char16_t* text) { return value(StringView(text)); }

/// A number slot: digits, at most one decimal point or comma, blanks and one sign around them, written as
/// they stand (numbers with a decimal point). Anything else is invalid, Null, Empty and the empty text
/// included.
Text number(const Variant& value);

/// A literal without apostrophes, for a criterion of Find only; as part of a statement it makes that
/// statement invalid. It reaches to the next " AND " or to the end. Invalid when it holds an apostrophe or
/// U+0000.
Text bare(StringView text);

}  // namespace zqn::ado::sql
