// SPDX-License-Identifier: MIT
#include "ground.h"

#include "ado/odbc/odbc.h"
#include "host/database/database.h"
#include "host/database/rows.h"
#include "host/database/schema/schema.h"
#include "host/database/server_schema.h"
#include "runtime/convert.h"
#include "runtime/digits.h"

namespace zqn::load {

namespace {

String twoPlaces(int number) {
  constexpr StringView digits = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  return {digits[static_cast<std::size_t>(number / 36 % 36)], digits[static_cast<std::size_t>(number % 36)]};
}

String inPlaces(int number, std::size_t places) {
  String digits = zqn::digits(number);
  return String(places > digits.size() ? places - digits.size() : 0, u'0') + digits;
}

host::Row stage(const String& key, const String& name, int progress) {
  return {key, name, false, std::int32_t{progress}};
}

host::Row priceList(const String& key, const String& name) {
  return {key, name, false, Null, u"99999999999999", Null, Null, u"EUR"};
}

}  // namespace

String ownStage(int clerk) { return u"X" + twoPlaces(clerk); }
String passingStage(int clerk) { return u"Y" + twoPlaces(clerk); }
String ownPriceList(int clerk) { return u"XP" + twoPlaces(clerk); }

String nameIn(int clerk, int round) {
  return u"Platz " + inPlaces(clerk, 4) + u" Stand " + inPlaces(round, 6);
}

void makeGround(const String& connectionString, int clerks) {
  const auto address = host::DatabaseAddress::read("odbc:" + toUtf8(connectionString));
  host::createTables(address, {.sample = true});
  const Ref<ado::Connection> connection = ado::openOdbc(connectionString);
  const auto product = host::productNamed(connection->provider().name());
  const auto insert = [&](const host::Table& table, const host::Row& row) {
    host::runStatement(*connection, host::insertStatement(table, *product), row);
  };
  const host::Table& stages = host::table(u"Vertriebsstati");
  const host::Table& priceLists = host::table(u"Preislistenkopf");
  for (int clerk = 0; clerk < clerks; ++clerk) {
    insert(stages, stage(ownStage(clerk), nameIn(clerk, 0), 10));
    insert(priceLists, priceList(ownPriceList(clerk), nameIn(clerk, 0)));
  }
  insert(stages, stage(String(CounterKey), u"Zähler", 0));
  insert(stages, stage(String(SharedKey), u"Gemeinsam", 0));
}

Variant valueOf(ado::Connection& connection, const String& statement) {
  const ado::RowStore rows = host::runStatement(connection, statement).rows;
  return rows.rows() == 0 ? Variant(Null) : host::rowValues(rows, 0).at(0);
}

std::vector<std::string> leftOnServer(const String& connectionString) {
  const Ref<ado::Connection> connection = ado::openOdbc(connectionString);
  std::vector<std::string> left;
  const auto expectNone = [&](const char* what, const String& statement) {
    const std::int32_t found = CLng(valueOf(*connection, statement));
    if (found > 0) left.push_back(std::to_string(found) + " " + what);
  };
  if (host::productNamed(connection->provider().name()) == host::DatabaseProduct::PostgreSql) {
    expectNone("open transactions",
               u"SELECT COUNT(*) FROM pg_stat_activity WHERE datname=current_database() AND "
               u"backend_type='client backend' AND pid<>pg_backend_pid() AND xact_start IS NOT NULL");
    expectNone("locks",
               u"SELECT COUNT(*) FROM pg_locks l JOIN pg_stat_activity a ON a.pid=l.pid WHERE "
               u"a.datname=current_database() AND a.backend_type='client backend' AND "
               u"l.pid<>pg_backend_pid()");
    return left;
  }
  expectNone("open transactions",
             u"SELECT COUNT(*) FROM information_schema.innodb_trx WHERE "
             u"trx_mysql_thread_id<>connection_id() AND trx_mysql_thread_id<>0");
  // A table that somebody holds, by a row of it or as a whole, is not to be had at once.
  for (const StringView table : {u"Vertriebsstati", u"Preislistenkopf", u"Staffelpreise"}) {
    try {
      connection->Execute(u"LOCK TABLES " + String(table) + u" WRITE NOWAIT");
      connection->Execute(u"UNLOCK TABLES");
    } catch (const RuntimeError& failure) {
      left.push_back("a lock on " + toUtf8(table) + ": " + toUtf8(failure.description()));
    }
  }
  return left;
}

}  // namespace zqn::load
