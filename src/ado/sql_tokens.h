// SPDX-License-Identifier: MIT
//
// The tokens of a statement, as far as the engine and its providers must know them: what is quoted, what is
// in parentheses, where the clauses of a SELECT begin. It is no parser; what it does not recognise it leaves
// alone.
//
//     sql::Shape shape(u"SELECT * FROM T WHERE K='10'");  // text "... WHERE K=?", literals {"10"}
#pragma once

#include <optional>
#include <vector>

#include "ado/row_store.h"
#include "runtime/string.h"

namespace zqn::ado::sql {

struct Token {
  /// `Name` is an identifier in double quotes, brackets or backticks; `Literal` a text in apostrophes, or one of
  /// PostgreSQL's own: E'it\'s', $$it's$$, $tag$it's$tag$. `Unclosed` is a quote without its end.
  enum class Kind { Word, Name, Literal, Number, Parameter, Symbol, Unclosed, End };

  Kind kind = Kind::End;
  /// As it stands in the statement, quotes included.
  StringView text;
  /// Parentheses open around it; a parenthesis itself counts to the outside.
  int depth = 0;

  /// It is this keyword, in any case; `keyword` in upper case.
  bool is(StringView keyword) const noexcept;
  bool isSymbol(StringView symbol) const noexcept { return kind == Kind::Symbol && text == symbol; }
  /// A word, or what is inside the quotes, doubled ones made single. PostgreSQL's own literals as they stand.
  String unquoted() const;
  /// A text in apostrophes alone, which every database reads the same.
  bool isPlainLiteral() const noexcept { return kind == Kind::Literal && text.starts_with(u'\''); }
};

/// Reads the tokens one after the other; blanks and comments are none.
class Scanner {
 public:
  explicit Scanner(StringView statement) : statement_(statement) {}

  /// Kind End at the end, again and again.
  Token next();

 private:
  void skipBlanks();
  std::size_t endOfQuoted(char16_t close, bool& closed) const;
  /// Behind the text that begins with E' at the place, or with $tag$; npos for another beginning or no end.
  std::size_t endOfEscaped() const;
  std::size_t endOfDollars() const;
  Token take(Token::Kind kind, std::size_t end);

  StringView statement_;
  std::size_t at_ = 0;
  int depth_ = 0;
};

/// The table of an "INSERT INTO table ...", without quotes; empty for another statement.
String insertedTable(StringView statement);

/// An identifier in double quotes, those inside doubled.
String quoted(StringView identifier);

/// A statement with the text literals behind the comparison operators of its WHERE taken out. Statements
/// other than SELECT, UPDATE and DELETE, and those that have parameters of their own, stay as they are.
struct Shape {
  explicit Shape(StringView statement);

  /// The literals for the statement's parameters; they refer to this Shape.
  std::vector<Value> parameters() const;

  String text;  // with `?` in their places
  std::vector<String> literals;
  bool recurs = false;   // a SELECT, UPDATE or DELETE: the next text may well have the same shape
  bool ordered = false;  // an ORDER BY of its own, not of a part in parentheses
};

/// "SELECT list FROM table [alias] [WHERE ...] [ORDER BY ...]": pieces of the statement.
struct PlainSelect {
  StringView list;
  StringView from;  // table with its alias
  String table;
  StringView rest;  // from WHERE, ORDER BY or LIMIT on, or empty
};
/// No value for anything else: a join, DISTINCT, GROUP BY, a compound, an aggregate, a table of another
/// database.
std::optional<PlainSelect> plainSelect(StringView statement);

}  // namespace zqn::ado::sql
