// SPDX-License-Identifier: MIT
//
// The scanner takes any statement apart from its beginning to its end, and what a Shape takes out of it are
// the literals that stand there.
#include "ado/sql_tokens.h"
#include "fuzz/input.h"

namespace {

using namespace zqn;
using ado::sql::Scanner;
using ado::sql::Token;

std::size_t parameters(StringView statement) {
  std::size_t count = 0;
  Scanner scanner(statement);
  for (Token token = scanner.next(); token.kind != Token::Kind::End; token = scanner.next())
    if (token.kind == Token::Kind::Parameter) ++count;
  return count;
}

/// The shape's text with its literals back in their places.
String filled(const ado::sql::Shape& shape) {
  String text;
  std::size_t copied = 0, literal = 0;
  Scanner scanner(shape.text);
  for (Token token = scanner.next(); token.kind != Token::Kind::End; token = scanner.next()) {
    if (token.kind != Token::Kind::Parameter) continue;
    const auto begin = static_cast<std::size_t>(token.text.data() - shape.text.data());
    text.append(shape.text, copied, begin - copied).append(1, u'\'');
    for (const char16_t unit : shape.literals[literal]) text.append(unit == u'\'' ? 2 : 1, unit);
    text += u'\'';
    ++literal;
    copied = begin + token.text.size();
  }
  return text.append(shape.text, copied);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const String statement = fuzz::textOf(data, size);
  const char16_t* behind = statement.data();
  Scanner scanner(statement);
  for (Token token = scanner.next(); token.kind != Token::Kind::End; token = scanner.next()) {
    fuzz::check(!token.text.empty(), "a token is not empty");
    fuzz::check(token.text.data() >= behind, "tokens follow each other");
    behind = token.text.data() + token.text.size();
    fuzz::check(behind <= statement.data() + statement.size(), "a token ends inside the statement");
    static_cast<void>(token.unquoted());
  }
  fuzz::check(scanner.next().kind == Token::Kind::End, "the end stays the end");

  const ado::sql::Shape shape(statement);
  if (!shape.literals.empty()) {
    fuzz::check(parameters(shape.text) == shape.literals.size(), "each literal has its parameter");
    fuzz::check(filled(shape) == statement, "with its literals a shape is the statement again");
  }
  fuzz::check(!shape.literals.empty() || shape.text == statement, "without literals it is the statement");

  if (const auto select = ado::sql::plainSelect(statement)) {
    for (const StringView piece : {select->list, select->from, select->rest})
      fuzz::check(piece.empty() || (piece.data() >= statement.data() &&
                                    piece.data() + piece.size() <= statement.data() + statement.size()),
                  "a piece is part of the statement");
    fuzz::check(!select->table.empty() || select->from.size() >= 2, "a plain select has a table");
  }
  static_cast<void>(ado::sql::insertedTable(statement));
  return 0;
}
