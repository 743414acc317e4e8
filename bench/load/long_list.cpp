// SPDX-License-Identifier: MIT
#include "long_list.h"

#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <ostream>
#include <stdexcept>

#include "ado/odbc/odbc.h"
#include "ado/recordset.h"
#include "ado/transaction.h"
#include "bare.h"
#include "ground.h"
#include "host/database/database.h"
#include "host/database/rows.h"
#include "host/database/schema/generate.h"
#include "host/database/schema/schema.h"
#include "host/database/server_schema.h"
#include "runtime/convert.h"
#include "runtime/digits.h"

namespace zqn::load {

namespace {

using Clock = std::chrono::steady_clock;

constexpr StringView List =
    u"SELECT Status, Bezeichnung FROM Vertriebsstati Where Status<>'-' ORDER BY Status";
constexpr int Page = 20;
constexpr int Rounds = 3;

double millisecondsOf(const auto& act) {
  const auto start = Clock::now();
  act();
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

std::size_t memoryInUse() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void makeLongTable(const String& connectionString, std::int64_t rows) {
  host::createTables(host::DatabaseAddress::read("odbc:" + toUtf8(connectionString)), {});
  const Ref<ado::Connection> connection = ado::openOdbc(connectionString);
  const auto product = host::productNamed(connection->provider().name());
  const host::Table& stages = host::table(u"Vertriebsstati");
  const auto insert =
      connection->provider().prepare(host::insertStatement(stages, *product), ado::Purpose::Plain);
  ado::Transaction transaction(*connection);
  host::generateRows(stages, rows,
                     [&](const host::Table&, const host::Row& row) { insert->open(host::parameters(row)); });
  transaction.commit();
  connection->Execute(product == host::DatabaseProduct::PostgreSql ? u"ANALYZE Vertriebsstati"
                                                                   : u"ANALYZE TABLE Vertriebsstati");
}

/// The list of kind 21 on a connection of its own that has been used before.
class LongList {
 public:
  explicit LongList(const Ref<ado::Connection>& connection) {
    rs_.CursorLocation(ado::adUseServer);
    rs_.Open(List, connection, ado::adOpenKeyset, ado::adLockReadOnly);
    for (int row = 0; row < Page; ++row) rs_.rowText(row, 1);
  }
  void find(const String& key) {
    rs_.Find(u"Status=" + ado::sql::value(key));
    if (rs_.IsEOF()) throw std::runtime_error("key " + toUtf8(key) + " was not found");
    for (int row = rs_.currentRow(); row < rs_.knownRows() && row < rs_.currentRow() + Page; ++row)
      rs_.rowText(row, 1);
  }
  int count() { return rs_.RecordCount(); }

 private:
  ado::Recordset rs_;
};

String keyAt(ado::Connection& connection, std::int64_t row) {
  return CStr(valueOf(connection,
                      u"SELECT Status FROM Vertriebsstati ORDER BY Status LIMIT 1 OFFSET " + digits(row)));
}

void print(std::ostream& out, const char* what, double milliseconds) {
  char text[120];
  std::snprintf(text, sizeof text, "%-58s %10.2f ms\n", what, milliseconds);
  out << text << std::flush;
}

}  // namespace

void measureLongList(std::ostream& out, const String& connectionString, std::int64_t rows) {
  print(out, "the rows are made", millisecondsOf([&] { makeLongTable(connectionString, rows); }));
  const Ref<ado::Connection> connection = ado::openOdbc(connectionString);
  const String early = keyAt(*connection, 10), late = keyAt(*connection, rows - 100);
  LongList(connection).find(early);

  double stands = 1e9, earlyFound = 1e9, lateFound = 1e9, counted = 1e9, bareRead = 1e9;
  double bytes = 0;
  Bare bare(connectionString);
  const Recording readAll{{String(List), {}}};
  for (int round = 0; round < Rounds; ++round) {
    stands = std::min(stands, millisecondsOf([&] { LongList list(connection); }));
    earlyFound = std::min(earlyFound, millisecondsOf([&] { LongList(connection).find(early); }));
    lateFound = std::min(lateFound, millisecondsOf([&] { LongList(connection).find(late); }));
    const std::size_t before = memoryInUse();
    LongList list(connection);
    counted = std::min(counted, millisecondsOf([&] {
                         if (list.count() != rows) throw std::runtime_error("the list has not all rows");
                       }));
    bytes = static_cast<double>(memoryInUse() - before) / static_cast<double>(rows);
    bareRead = std::min(bareRead, millisecondsOf([&] { bare.run(readAll); }));
  }
  out << rows << " rows, the best of " << Rounds << "\n";
  print(out, "the list stands with its first page", stands);
  print(out, "the list stands, and a key near its beginning is found", earlyFound);
  print(out, "the list stands, and a key near its end is found", lateFound);
  print(out, "all rows are counted, the list stands already", counted);
  print(out, "both columns of all rows read bare", bareRead);
  out << "keys in memory: " << bytes << " bytes a row\n";
}

}  // namespace zqn::load
