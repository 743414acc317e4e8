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
      .exactBefore = u"CONVERT(",
      .exactBehind = u" USING utf8mb4) COLLATE utf8mb4_nopad_bin",
      .defaultValues = u"() VALUES ()",
      .lastNumber = u"SELECT LAST_INSERT_ID()",
      .snapshot = {u"SET TRANSACTION ISOLATION LEVEL REPEATABLE READ",
                   u"START TRANSACTION WITH CONSISTENT SNAPSHOT, READ ONLY"}};
}

const std::array<Dialect, 5>& dialects() {
  static const std::array<Dialect, 5> rows = {
      Dialect{.product = u""},
      Dialect{
          .product = u"PostgreSQL",
          .connection = {{u"BoolsAsChar", u"0"}, {u"LFConversion", u"0"}, {u"UseServerSidePrepare", u"1"}},
          .start = {u"SET standard_conforming_strings=on", u"SET lock_timeout='5s'"},
          .lowerCaseNames = true,
          .strictBooleans = true,
          .untypedParameters = true,
          .like = u"COLLATE \"und-x-icu\" ILIKE",
          .asText = u"::text ",
          .exactBehind = u" COLLATE \"C\"",
          .lastNumber = u"SELECT lastval()",
          .snapshot = {u"BEGIN ISOLATION LEVEL REPEATABLE READ, READ ONLY"}},
      mariaDb(u"MariaDB"), mariaDb(u"MySQL"),
      Dialect{.product = u"Microsoft SQL Server",
              .start = {u"SET QUOTED_IDENTIFIER ON", u"SET LOCK_TIMEOUT 5000"},
              .noTruthWords = true,
              .nationalLiterals = true,
              .exactBehind = u" COLLATE Latin1_General_100_BIN2",
              .begin = u"BEGIN TRANSACTION",
              .lastNumber = u"SELECT @@IDENTITY"}};
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
