// SPDX-License-Identifier: MIT
#include "ado/criterion.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "ado/enums.h"
#include "ado/field_values.h"
#include "ado/raise.h"
#include "runtime/ascii.h"
#include "runtime/collation.h"

namespace zqn::ado {

namespace {

using Comparison = Criterion::Comparison;
using Operator = Criterion::Operator;

[[noreturn]] void refuse() { raise(error::InvalidArgument); }

StringView withoutBlanks(StringView text) {
  while (!text.empty() && text.front() == u' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == u' ') text.remove_suffix(1);
  return text;
}

/// Reads a criterion from its start to its end.
class Reader {
 public:
  explicit Reader(StringView text) : rest_(text) {}

  String columnName();
  Operator comparisonOperator();
  String literal();
  /// True with another comparison ahead, false at the end.
  bool conjunction();

 private:
  void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(u' '), rest_.size())); }
  String quotedLiteral();

  static constexpr StringView And = u" AND ";
  StringView rest_;
};

String Reader::columnName() {
  skipBlanks();
  const bool bracketed = rest_.starts_with(u'[');
  const std::size_t end = bracketed ? rest_.find(u']') : rest_.find_first_of(u" =<>'#");
  if (end == 0 || end == StringView::npos) refuse();
  String name(bracketed ? rest_.substr(1, end - 1) : rest_.substr(0, end));
  rest_.remove_prefix(bracketed ? end + 1 : end);
  return name;
}

Operator Reader::comparisonOperator() {
  struct Spelling {
    StringView text;
    Operator op;
  };
  constexpr std::array<Spelling, 7> spellings = {{{u"<>", Operator::NotEqual},
                                                  {u"<=", Operator::LessOrEqual},
                                                  {u">=", Operator::GreaterOrEqual},
                                                  {u"=", Operator::Equal},
                                                  {u"<", Operator::Less},
                                                  {u">", Operator::Greater},
                                                  {u"LIKE", Operator::Is}}};
  skipBlanks();
  for (const Spelling& spelling : spellings) {
    if (!sameName(rest_.substr(0, spelling.text.size()), spelling.text)) continue;
    rest_.remove_prefix(spelling.text.size());
    return spelling.op;
  }
  refuse();
}

String Reader::literal() {
  skipBlanks();
  if (rest_.starts_with(u'\'') || rest_.starts_with(u'#')) return quotedLiteral();
  std::size_t end = 0;
  while (end < rest_.size() && !sameName(rest_.substr(end, And.size()), And)) ++end;
  const StringView literal = withoutBlanks(rest_.substr(0, end));
  if (literal.empty() || literal.find(u'\'') != StringView::npos) refuse();
  rest_.remove_prefix(end);
  return String(literal);
}

String Reader::quotedLiteral() {
  const char16_t quote = rest_.front();
  String literal;
  for (std::size_t i = 1; i < rest_.size(); ++i) {
    if (rest_[i] == quote && !rest_.substr(i + 1).starts_with(quote)) {
      rest_.remove_prefix(i + 1);
      return literal;
    }
    if (rest_[i] == quote) ++i;
    literal += rest_[i];
  }
  refuse();
}

bool Reader::conjunction() {
  if (withoutBlanks(rest_).empty()) return false;
  while (rest_.starts_with(u"  ")) rest_.remove_prefix(1);
  if (!sameName(rest_.substr(0, And.size()), And)) refuse();
  rest_.remove_prefix(And.size());
  return true;
}

std::optional<double> asNumber(StringView text) {
  std::string typed;
  for (const char16_t unit : withoutBlanks(text)) typed += unit < 0x80 ? static_cast<char>(unit) : '?';
  const std::size_t sign = typed.find_first_not_of("+-");
  if (sign > 1 || (typed[sign] != '.' && !ascii::isDigit(static_cast<unsigned char>(typed[sign])))) return {};
  double number = 0;
  const char* end = typed.data() + typed.size();
  const auto [stop, failure] = std::from_chars(typed.data() + (typed.front() == '+'), end, number);
  return failure == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

std::optional<double> asTruth(StringView text) {
  if (sameName(text, u"True") || sameName(text, u"Wahr")) return 1;
  if (sameName(text, u"False") || sameName(text, u"Falsch")) return 0;
  const auto number = asNumber(text);
  return number ? std::optional<double>(*number != 0) : std::nullopt;
}

/// LIKE allows a sign for "anything" at the end or at both ends.
void readPattern(Comparison& comparison) {
  const auto any = [](char16_t unit) { return unit == u'*' || unit == u'%'; };
  String& text = comparison.text;
  if (!text.empty() && any(text.back())) {
    comparison.op = Operator::StartsWith;
    text.pop_back();
    if (!text.empty() && any(text.front())) {
      comparison.op = Operator::Contains;
      text.erase(0, 1);
    }
  }
  if (std::ranges::any_of(text, any)) refuse();
}

Comparison resolve(StringView name, Operator op, String literal, const Columns& columns) {
  const auto column = std::ranges::find_if(
      columns, [&](const Column& known) { return !known.hidden && sameName(known.name, name); });
  if (column == columns.end()) raise(error::ItemNotFound);

  Comparison comparison{
      static_cast<int>(column - columns.begin()), op, std::move(literal), {}, column->type == adBoolean};
  comparison.number = comparison.truth ? asTruth(comparison.text) : asNumber(comparison.text);
  const bool needsNumber = !isTextType(column->type) && column->type != adVariant;
  if (op == Operator::Is) {
    if (needsNumber) refuse();
    readPattern(comparison);
  } else if (needsNumber && !comparison.number) {
    raise(error::ProviderTypeMismatch);
  }
  return comparison;
}

String upperCase(StringView text) {
  String upper(text);
  std::ranges::transform(upper, upper.begin(), upperUnit);
  return upper;
}

bool fits(Operator op, int order) {
  switch (op) {
    case Operator::Is:
    case Operator::Equal:
      return order == 0;
    case Operator::NotEqual:
      return order != 0;
    case Operator::Less:
      return order < 0;
    case Operator::Greater:
      return order > 0;
    case Operator::LessOrEqual:
      return order <= 0;
    case Operator::GreaterOrEqual:
      return order >= 0;
    case Operator::StartsWith:
    case Operator::Contains:
      break;
  }
  return false;
}

}  // namespace

Criterion::Criterion(StringView text, const Columns& columns) : columns_(&columns) {
  Reader reader(text);
  do {
    const String name = reader.columnName();
    const Operator op = reader.comparisonOperator();
    comparisons_.push_back(resolve(name, op, reader.literal(), columns));
  } while (reader.conjunction());
}

bool Criterion::holds(const RowView& row) const {
  return std::ranges::all_of(comparisons_, [&](const Comparison& comparison) {
    return comparison.holds(row.at(comparison.column));
  });
}

bool Criterion::Comparison::holds(const Value& value) const {
  switch (value.kind) {
    case Value::Kind::Null:
      return false;
    case Value::Kind::Text:
      if (op == Operator::StartsWith) return upperCase(value.text).starts_with(upperCase(text));
      if (op == Operator::Contains) return upperCase(value.text).find(upperCase(text)) != String::npos;
      return fits(op, compareCollated(value.text, text));
    case Value::Kind::Integer:
    case Value::Kind::Real:
      break;
  }
  if (!number) return false;
  const double stored = value.kind == Value::Kind::Real ? value.real : static_cast<double>(value.integer);
  const double side = truth ? stored != 0 : stored;
  return fits(op, side < *number ? -1 : side > *number);
}

std::vector<ColumnEquals> Criterion::equalities() const {
  std::vector<ColumnEquals> equalities;
  for (const Comparison& comparison : comparisons_) {
    const Column& column = (*columns_)[static_cast<std::size_t>(comparison.column)];
    if (comparison.op != Operator::Equal || comparison.truth || column.type == adVariant) continue;
    equalities.push_back({comparison.column, isTextType(column.type) ? Value::of(StringView(comparison.text))
                                                                     : Value::of(*comparison.number)});
  }
  return equalities;
}

}  // namespace zqn::ado
