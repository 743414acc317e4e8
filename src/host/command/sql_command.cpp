// SPDX-License-Identifier: MIT
#include "host/command/sql_command.h"

#include <istream>
#include <ostream>
#include <string>

#include "ado/transaction.h"
#include "host/database/failure.h"
#include "host/database/rows.h"
#include "host/script/json_values.h"

namespace zqn::host {

namespace {

constexpr const char* blanks = " \t\r\n";

CommandFailure failed(const std::string& reason, const std::string& statement = {}) {
  return CommandFailure(ExitStatus::CannotOpen, reason, statement);
}

/// What becomes of statements that ran before, where they are not kept.
std::string fateOfTheRest(const ado::Connection& connection) {
  return ado::inTransaction(connection) ? "; the transaction that was begun is rolled back" : "";
}

/// Takes the `;` and the blanks behind it off; false when the line does not end a statement.
bool endsStatement(std::string& text) {
  const auto last = text.find_last_not_of(blanks);
  if (last == std::string::npos || text[last] != ';') return false;
  text.erase(last);
  return true;
}

void runOne(ado::Connection& connection, const std::string& statement, std::ostream& out) {
  // A failure may end a transaction by itself, and what it held is gone all the same.
  const std::string fate = fateOfTheRest(connection);
  const String text = fromUtf8(statement);
  if (toUtf8(text) != statement) throw failed("a statement is no text in UTF-8 and was not run", statement);
  try {
    const ado::RowStore rows = runStatement(connection, text).rows;
    out << '[';
    for (int row = 0; row < rows.rows(); ++row) {
      auto line = script::Json::array();
      for (const Variant& value : rowValues(rows, row)) line.push_back(script::jsonValue(value));
      out << (row > 0 ? "," : "") << line.dump();
    }
    out << "]" << std::endl;
  } catch (const RuntimeError& failure) {
    throw failed(toUtf8(failure.description()) + fate, statement);
  }
  // Whoever cannot be told what was done does not want more of it.
  if (!out) throw failed("the rows cannot be written" + fateOfTheRest(connection), statement);
}

}  // namespace

void runStatements(ado::Connection& connection, std::istream& in, std::ostream& out) {
  std::string statement;
  for (std::string line; std::getline(in, line);) {
    statement += line + "\n";
    if (!endsStatement(statement)) continue;
    if (statement.find_first_not_of(blanks) != std::string::npos) runOne(connection, statement, out);
    statement.clear();
  }
  if (in.bad()) throw failed("the statements cannot be read any further" + fateOfTheRest(connection));
  // Half a statement may mean something else than the whole: a DELETE that has lost its WHERE.
  if (statement.find_first_not_of(blanks) != std::string::npos)
    throw failed(
        "the last statement does not end with ; at a line's end and was not run" + fateOfTheRest(connection),
        statement);
  if (ado::inTransaction(connection))
    throw failed("the statements end inside a transaction, which is rolled back; end it with COMMIT;");
}

}  // namespace zqn::host
