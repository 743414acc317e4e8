// SPDX-License-Identifier: MIT
#include "ado/sql_tokens.h"

#include <algorithm>
#include <array>

#include "runtime/ascii.h"

namespace zqn::ado::sql {

namespace {

using Kind = Token::Kind;

using ascii::isBlank;
using ascii::isDigit;

constexpr bool startsWord(char16_t unit) {
  return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'_' || unit >= 0x80;
}
constexpr bool continuesWord(char16_t unit) { return startsWord(unit) || isDigit(unit) || unit == u'$'; }

template <std::size_t N>
bool isOneOf(const Token& token, const std::array<StringView, N>& keywords) {
  return std::ranges::any_of(keywords, [&](StringView keyword) { return token.is(keyword); });
}

bool isComparison(const Token& token) {
  constexpr std::array<StringView, 8> operators = {u"=", u"<>", u"<", u">", u"<=", u">=", u"!=", u"=="};
  return token.kind == Kind::Symbol && std::ranges::find(operators, token.text) != operators.end();
}

}  // namespace

bool Token::is(StringView keyword) const noexcept { return kind == Kind::Word && ascii::same(text, keyword); }

String Token::unquoted() const {
  if (kind != Kind::Name && !isPlainLiteral()) return String(text);
  const StringView inside = text.substr(1, text.size() - 2);
  const char16_t quote = text.back();
  String plain;
  for (std::size_t i = 0; i < inside.size(); ++i) {
    plain += inside[i];
    if (inside[i] == quote) ++i;
  }
  return plain;
}

void Scanner::skipBlanks() {
  while (at_ < statement_.size()) {
    const StringView ahead = statement_.substr(at_);
    if (isBlank(ahead.front())) {
      ++at_;
    } else if (ahead.starts_with(u"--")) {
      at_ = std::min(statement_.find(u'\n', at_), statement_.size());
    } else if (ahead.starts_with(u"/*")) {
      const std::size_t end = statement_.find(u"*/", at_ + 2);
      at_ = end == StringView::npos ? statement_.size() : end + 2;
    } else {
      return;
    }
  }
}

std::size_t Scanner::endOfQuoted(char16_t close, bool& closed) const {
  for (std::size_t i = at_ + 1; i < statement_.size(); ++i) {
    if (statement_[i] != close) continue;
    if (close != u']' && i + 1 < statement_.size() && statement_[i + 1] == close) {
      ++i;
      continue;
    }
    closed = true;
    return i + 1;
  }
  return statement_.size();
}

std::size_t Scanner::endOfEscaped() const {
  for (std::size_t i = at_ + 2; i < statement_.size(); ++i) {
    if (statement_[i] == u'\\') {
      ++i;
    } else if (statement_[i] == u'\'') {
      if (!statement_.substr(i + 1).starts_with(u'\'')) return i + 1;
      ++i;
    }
  }
  return StringView::npos;
}

std::size_t Scanner::endOfDollars() const {
  std::size_t tag = at_ + 1;
  while (tag < statement_.size() && continuesWord(statement_[tag]) && statement_[tag] != u'$') ++tag;
  const bool opens = tag < statement_.size() && statement_[tag] == u'$' && !isDigit(statement_[at_ + 1]);
  if (!opens) return StringView::npos;
  const StringView quote = statement_.substr(at_, tag + 1 - at_);
  const std::size_t end = statement_.find(quote, tag + 1);
  return end == StringView::npos ? end : end + quote.size();
}

Token Scanner::take(Kind kind, std::size_t end) {
  const Token token{kind, statement_.substr(at_, end - at_), depth_};
  at_ = end;
  return token;
}

Token Scanner::next() {
  skipBlanks();
  if (at_ >= statement_.size()) return take(Kind::End, statement_.size());
  const auto endOf = [&](std::size_t from, auto condition) {
    while (from < statement_.size() && condition(statement_[from])) ++from;
    return from;
  };
  const char16_t first = statement_[at_];
  const char16_t second = at_ + 1 < statement_.size() ? statement_[at_ + 1] : u'\0';
  if (first == u'\'' || first == u'"' || first == u'[' || first == u'`') {
    bool closed = false;
    const std::size_t end = endOfQuoted(first == u'[' ? u']' : first, closed);
    return take(!closed ? Kind::Unclosed : first == u'\'' ? Kind::Literal : Kind::Name, end);
  }
  if ((first == u'e' || first == u'E') && second == u'\'') {
    const std::size_t end = endOfEscaped();
    return end == StringView::npos ? take(Kind::Unclosed, statement_.size()) : take(Kind::Literal, end);
  }
  if (first == u'$') {
    if (const std::size_t end = endOfDollars(); end != StringView::npos) return take(Kind::Literal, end);
  }
  if (startsWord(first)) return take(Kind::Word, endOf(at_, continuesWord));
  if (isDigit(first) || (first == u'.' && isDigit(second))) {
    return take(Kind::Number, endOf(at_, [](char16_t unit) { return continuesWord(unit) || unit == u'.'; }));
  }
  if (first == u'?' || ((first == u':' || first == u'@' || first == u'$') && continuesWord(second))) {
    return take(Kind::Parameter, endOf(at_ + 1, continuesWord));
  }
  if (first == u'(') {
    const Token token = take(Kind::Symbol, at_ + 1);
    ++depth_;
    return token;
  }
  if (first == u')') {
    --depth_;
    return take(Kind::Symbol, at_ + 1);
  }
  constexpr std::array<StringView, 8> pairs = {u"<>", u"<=", u">=", u"!=", u"==", u"||", u"<<", u">>"};
  const bool pair = std::ranges::find(pairs, statement_.substr(at_, 2)) != pairs.end();
  return take(Kind::Symbol, at_ + (pair ? 2 : 1));
}

Shape::Shape(StringView statement) {
  Scanner scanner(statement);
  Token token = scanner.next();
  recurs = token.is(u"SELECT") || token.is(u"UPDATE") || token.is(u"DELETE");
  bool condition = false;
  std::size_t copied = 0;
  text.reserve(statement.size());
  for (Token before = token; token.kind != Kind::End; before = token, token = scanner.next()) {
    if (token.kind == Kind::Parameter || token.kind == Kind::Unclosed) {
      text = statement;
      literals.clear();
      return;
    }
    condition = condition || token.is(u"WHERE");
    ordered = ordered || (token.depth == 0 && token.is(u"ORDER"));
    if (token.isPlainLiteral() && recurs && condition && isComparison(before)) {
      const auto begin = static_cast<std::size_t>(token.text.data() - statement.data());
      text.append(statement, copied, begin - copied).append(1, u'?');
      copied = begin + token.text.size();
      literals.push_back(token.unquoted());
    }
  }
  text.append(statement, copied);
}

String insertedTable(StringView statement) {
  Scanner scanner(statement);
  if (!scanner.next().is(u"INSERT") || !scanner.next().is(u"INTO")) return {};
  const Token table = scanner.next();
  return table.kind == Kind::Word || table.kind == Kind::Name ? table.unquoted() : String();
}

String quoted(StringView identifier) {
  String text(1, u'"');
  for (const char16_t unit : identifier) text.append(unit == u'"' ? 2 : 1, unit);
  return text += u'"';
}

std::vector<Value> Shape::parameters() const {
  std::vector<Value> values;
  for (const String& literal : literals) values.push_back(Value::of(StringView(literal)));
  return values;
}

std::optional<PlainSelect> plainSelect(StringView statement) {
  constexpr std::array<StringView, 4> clauses = {u"WHERE", u"ORDER", u"LIMIT", u"OFFSET"};
  constexpr std::array<StringView, 6> otherwise = {u"GROUP",  u"HAVING",    u"UNION",
                                                   u"EXCEPT", u"INTERSECT", u"WINDOW"};
  constexpr std::array<StringView, 10> aggregates = {u"COUNT",
                                                     u"SUM",
                                                     u"TOTAL",
                                                     u"AVG",
                                                     u"MIN",
                                                     u"MAX",
                                                     u"GROUP_CONCAT",
                                                     u"JSON_GROUP_ARRAY",
                                                     u"JSON_GROUP_OBJECT",
                                                     u"OVER"};
  const auto begin = [&](const Token& token) {
    return static_cast<std::size_t>(token.text.data() - statement.data());
  };

  Scanner scanner(statement);
  if (!scanner.next().is(u"SELECT")) return {};
  Token token = scanner.next();
  if (token.is(u"DISTINCT") || token.is(u"ALL")) return {};

  PlainSelect select;
  const std::size_t list = begin(token);
  for (Token before; !(token.depth == 0 && token.is(u"FROM")); before = token, token = scanner.next()) {
    const bool aggregate = token.isSymbol(u"(") && isOneOf(before, aggregates);
    const bool window = token.is(u"OVER") && before.isSymbol(u")");
    if (token.kind == Kind::End || aggregate || window) return {};
  }
  select.list = statement.substr(list, begin(token) - list);

  const Token table = scanner.next();
  if (table.kind != Kind::Word && table.kind != Kind::Name) return {};
  select.table = table.unquoted();
  token = scanner.next();
  if (token.is(u"AS")) token = scanner.next();
  const bool alias = token.kind == Kind::Name || (token.kind == Kind::Word && !isOneOf(token, clauses));
  if (alias) token = scanner.next();
  const std::size_t rest = begin(token);
  select.from = statement.substr(begin(table), rest - begin(table));
  if (token.kind != Kind::End && !token.isSymbol(u";") && !isOneOf(token, clauses)) return {};

  for (; token.kind != Kind::End && !token.isSymbol(u";"); token = scanner.next()) {
    if (token.kind == Kind::Unclosed) return {};
    if (token.depth == 0 && isOneOf(token, otherwise)) return {};
  }
  select.rest = statement.substr(rest, begin(token) - rest);
  if (token.kind != Kind::End && scanner.next().kind != Kind::End) return {};
  return select;
}

}  // namespace zqn::ado::sql
