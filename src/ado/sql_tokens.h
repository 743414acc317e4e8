// SPDX-License-Identifier: MIT
//
// The tokens of a statement, as far as the engine and its providers must know them: what is quoted, what is
// in parentheses, where the clauses of a SELECT begin. It is no parser; what it does not recognise it leaves
// alone.
//
//     sql::Shape shape(u"SELECT * FROM T WHERE K='10'");   // text "... WHERE K=?", literals {"10"}
#pragma once

#include <optional>
#include <vector>

#include "runtime/string.h"

namespace zqn::ado::sql {

struct Token {
  enum class Kind { Word, Quoted, Text, Number, Parameter, Symbol, Unclosed };
  Kind kind = Kind::Symbol;
  /// Place in the statement, in UTF-16 units.
  std::size_t begin = 0, end = 0;
  /// Parentheses open around it; the parentheses themselves count to the inside.
  int depth = 0;
};

/// All tokens; blanks and comments are none. `Quoted` is an identifier in double quotes, brackets or
/// backticks, `Unclosed` a quote without its end (the last token then).
std::vector<Token> tokens(StringView statement);
/// The token is this word, in any case; `word` in upper case.
bool isWord(StringView statement, const Token& token, StringView word);
/// An identifier without its quotes; a text literal without its apostrophes.
String unquoted(StringView statement, const Token& token);

/// A statement with the text literals behind the comparison operators of its WHERE taken out.
struct Shape {
  Shape() = default;
  explicit Shape(StringView statement);
  /// With `?` in their places.
  String text;
  std::vector<String> literals;
};

/// The parts of "SELECT list FROM table [alias] rest", as pieces of the statement.
struct PlainSelect {
  StringView list;
  StringView from;  // table with alias
  String table;     // unquoted
  StringView rest;  // WHERE, ORDER BY, LIMIT
  bool ordered = false;
};
/// No value for anything else: a join, DISTINCT, GROUP BY, a compound, an aggregate, a table in another
/// database.
std::optional<PlainSelect> plainSelect(StringView statement);

}  // namespace zqn::ado::sql
