// SPDX-License-Identifier: MIT
//
// Any statement is refused by its number, or becomes one statement in the server's words that has the same
// texts and the same parameters in the same order: whatever is rewritten, no value is.
#include <vector>

#include "ado/odbc/tables.h"
#include "ado/odbc/translate.h"
#include "ado/sql_tokens.h"
#include "fuzz/input.h"

namespace {

using namespace zqn;
using ado::sql::Scanner;
using ado::sql::Token;

struct Values {
  std::vector<String> texts;
  std::size_t parameters = 0, separators = 0;
};

Values valuesOf(StringView statement) {
  Values values;
  Scanner scanner(statement);
  for (Token token = scanner.next(); token.kind != Token::Kind::End; token = scanner.next()) {
    if (token.kind == Token::Kind::Literal) values.texts.emplace_back(token.text);
    if (token.kind == Token::Kind::Parameter) ++values.parameters;
    if (token.isSymbol(u";")) ++values.separators;
  }
  return values;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ado::odbc::TableInfo table{
      u"vertriebsstati",
      {{u"status"}, {u"bezeichnung"}, {u"historie", true}, {u"größe"}, {u"nummer", false, true}},
      {u"status"}};
  const auto lookup = [](StringView name) { return sameName(name, table.name) ? &table : nullptr; };
  const String statement = fuzz::textOf(data, size);
  const Values before = valuesOf(statement);
  for (const char16_t* product : {u"PostgreSQL", u"MariaDB", u"Microsoft SQL Server", u""}) {
    ado::odbc::Translation translation;
    try {
      translation = ado::odbc::translate(statement, ado::odbc::dialectOf(product), lookup);
    } catch (const RuntimeError& failure) {
      fuzz::check(failure.number() == error::CommandText, "a statement is refused by its number");
      continue;
    }
    const Values after = valuesOf(translation.text);
    fuzz::check(after.texts == before.texts, "no text has changed");
    fuzz::check(after.parameters == before.parameters, "no parameter has come or gone");
    fuzz::check(after.separators == 0, "it is one statement");
  }
  return 0;
}
