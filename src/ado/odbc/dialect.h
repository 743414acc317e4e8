// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: what a product says in other words. A product is a row of dialect.cpp; one that
// is not there is taken at its word (standard SQL).
#pragma once

#include <vector>

#include "runtime/string.h"

namespace zqn::ado::odbc {

struct Dialect {
  /// As the driver reports it.
  StringView product;
  /// Keys that the driver must be given, appended to a connection string that does not have them.
  std::vector<std::pair<StringView, StringView>> connection = {};
  /// Run on each new connection.
  std::vector<StringView> start = {};

  /// Names without quotes mean those in lower case. So names get quotes, in the spelling of the tables or of
  /// the statement itself.
  bool lowerCaseNames = false;
  /// Names of tables may distinguish case, however they are written.
  bool exactTableNames = false;
  /// A Boolean column compares with True and False alone.
  bool strictBooleans = false;
  /// A TINYINT column holds yes or no.
  bool tinyIsBoolean = false;
  /// True and False are no words.
  bool noTruthWords = false;
  /// A parameter is sent as a text, and the server takes it for what its place needs.
  bool untypedParameters = false;
  /// The driver is quicker with UTF-8 than with UTF-16.
  bool utf8Texts = false;
  /// A statement with rows is prepared first, whatever it is: run at once, the driver ends the process when the
  /// connection drops at that moment.
  bool preparesAlways = false;
  /// A literal beyond ASCII needs N before it.
  bool nationalLiterals = false;
  /// LIKE distinguishes case, or is refused on the columns of this system; this stands in its place.
  StringView like = {};
  /// Behind a column of numbers that is compared with a pattern.
  StringView asText = {};
  /// Makes a text comparison one of bytes: before and behind the column.
  StringView exactBefore = {}, exactBehind = {};
  /// BEGIN, and an INSERT without values, as the server writes them.
  StringView begin = u"BEGIN";
  StringView defaultValues = u"DEFAULT VALUES";
  /// An INSERT may end in RETURNING and the columns of its key.
  bool returns = false;
  /// Where it may not: a statement in the same batch, with the number that the INSERT has counted. Nothing
  /// that a trigger inserts changes it.
  StringView numberInBatch = {};
  /// Where neither goes: what asks for the number behind the INSERT, and what forgets an older one before it.
  StringView lastNumber = {}, forgetNumber = {};
  /// The key of the connection string that says which size a column gets whose longest text the driver does
  /// not know.
  StringView madeUpSize = {};
  /// The driver reads on in any row of a block of rows.
  bool readsOnInBlocks = false;
  /// What asks for the tables, the columns and the key of the table `?`, in the columns of SQLTables, SQLColumns
  /// and SQLPrimaryKeys; empty where the driver is asked by those.
  StringView tables = {}, columns = {}, primaryKey = {};
  /// Begins a transaction that shows one state of the database and writes nothing; empty where a list reads
  /// all its keys at once.
  std::vector<StringView> snapshot = {};
};

/// The row for a product; never fails.
const Dialect& dialectOf(StringView product);

}  // namespace zqn::ado::odbc
