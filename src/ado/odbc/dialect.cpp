// SPDX-License-Identifier: MIT
#include "ado/odbc/dialect.h"

#include <algorithm>
#include <array>

#include "runtime/ascii.h"

namespace zqn::ado::odbc {

namespace {

Dialect mariaDb(StringView product) {
  return {
      .product = product,
      // Rows found, not rows changed, as the count of an UPDATE.
      .connection = {{u"OPTION", u"2"}, {u"CHARSET", u"utf8mb4"}},
      .start = {u"SET SESSION sql_mode='ANSI_QUOTES,NO_BACKSLASH_ESCAPES,PIPES_AS_CONCAT,STRICT_ALL_TABLES,"
                u"NO_ENGINE_SUBSTITUTION'",
                u"SET SESSION innodb_lock_wait_timeout=5, lock_wait_timeout=5"},
      .exactTableNames = true,
      .tinyIsBoolean = true,
      .utf8Texts = true,
      .preparesAlways = true,
      .exactBefore = u"CONVERT(",
      .exactBehind = u" USING utf8mb4) COLLATE utf8mb4_nopad_bin",
      .defaultValues = u"() VALUES ()",
      // Not RETURNING: when such an INSERT has failed, the driver waits for ever at its next run. A trigger's
      // own numbers do not count here.
      .lastNumber = u"SELECT LAST_INSERT_ID()",
      .forgetNumber = u"SELECT LAST_INSERT_ID(0)",
      // The driver's own routines for them run statements at once.
      .tables = u"SELECT '', '', TABLE_NAME FROM information_schema.TABLES WHERE TABLE_SCHEMA=DATABASE()",
      .columns =
          u"SELECT '', '', TABLE_NAME, COLUMN_NAME, CASE WHEN DATA_TYPE='bit' THEN -7 "
          u"WHEN NUMERIC_PRECISION IS NULL THEN 12 ELSE 8 END FROM information_schema.COLUMNS "
          u"WHERE TABLE_SCHEMA=DATABASE() AND TABLE_NAME=? ORDER BY ORDINAL_POSITION",
      .primaryKey =
          u"SELECT '', '', TABLE_NAME, COLUMN_NAME, ORDINAL_POSITION "
          u"FROM information_schema.KEY_COLUMN_USAGE WHERE TABLE_SCHEMA=DATABASE() "
          u"AND TABLE_NAME=? AND CONSTRAINT_NAME='PRIMARY'",
      .snapshot = {u"SET TRANSACTION ISOLATION LEVEL REPEATABLE READ",
                   u"START TRANSACTION WITH CONSISTENT SNAPSHOT, READ ONLY"}};
}

const std::array<Dialect, 5>& dialects() {
  static const std::array<Dialect, 5> rows = {
      Dialect{.product = u""},
      Dialect{
          .product = u"PostgreSQL",
          // The sizes that the driver makes up are such that nobody declares them; that of long texts is the
          // larger one, or they count as short ones.
          .connection = {{u"BoolsAsChar", u"0"},
                         {u"LFConversion", u"0"},
                         {u"UseServerSidePrepare", u"1"},
                         {u"MaxVarcharSize", u"16381"},
                         {u"MaxLongVarcharSize", u"16382"}},
          .start = {u"SET standard_conforming_strings=on", u"SET lock_timeout='5s'"},
          .lowerCaseNames = true,
          .strictBooleans = true,
          .untypedParameters = true,
          .like = u"COLLATE \"und-x-icu\" ILIKE",
          .asText = u"::text ",
          // The text that a value is read as, whatever its type; a cast would take blanks off.
          .exactBefore = u"CONCAT(",
          .exactBehind = u") COLLATE \"C\"",
          .returns = true,
          .madeUpSize = u"MaxVarcharSize",
          .readsOnInBlocks = true,
          .snapshot = {u"BEGIN ISOLATION LEVEL REPEATABLE READ, READ ONLY"}},
      mariaDb(u"MariaDB"), mariaDb(u"MySQL"),
      Dialect{.product = u"Microsoft SQL Server",
              .start = {u"SET QUOTED_IDENTIFIER ON", u"SET LOCK_TIMEOUT 5000"},
              .noTruthWords = true,
              .nationalLiterals = true,
              .exactBehind = u" COLLATE Latin1_General_100_BIN2",
              .begin = u"BEGIN TRANSACTION",
              // OUTPUT is refused for a table that has triggers.
              .numberInBatch = u"; SELECT CAST(SCOPE_IDENTITY() AS BIGINT)"}};
  return rows;
}

}  // namespace

const Dialect& dialectOf(StringView product) {
  const auto& rows = dialects();
  const auto row = std::ranges::find_if(
      rows, [&](const Dialect& dialect) { return ascii::same(dialect.product, product); });
  return row == rows.end() ? rows.front() : *row;
}

}  // namespace zqn::ado::odbc
