// SPDX-License-Identifier: MIT
//
// The rules of recordsets as test cases that run on every database. A provider's test names its context and
// instantiates the groups:
//
//     INSTANTIATE_TEST_SUITE_P(Sqlite, RecordsetTest, testing::ValuesIn(anywhere(makeContext)), nameOf);
//
// Each case begins with the same table, Vertriebsstati with the rows 10, 20 and 30, and says for itself what
// else it needs.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ado/command.h"
#include "ado/recordset.h"
#include "runtime/convert.h"
#include "testing/runtime.h"

namespace zqn::ado::suite {

/// One empty database of one product, gone with the context.
class Context {
 public:
  virtual ~Context() = default;
  /// Another connection to it.
  virtual Ref<Connection> connect() = 0;
  /// Declaration of a text column of `size` units whose texts compare without case.
  virtual String textColumn(int size) const = 0;
  /// Declaration of a primary key that the database counts by itself.
  virtual String countedKey() const = 0;
  /// How a result spells the name of a column that was declared without quotes.
  virtual String resultName(StringView declared) const { return String(declared); }
  /// 'B ' finds 'B', too.
  virtual bool ignoresTrailingBlanks() const = 0;
  /// A row of a table without a primary key can be found again, and so be updated.
  virtual bool updatesWithoutKey() const = 0;
};
using MakeContext = std::function<std::unique_ptr<Context>()>;

/// A product, and where the cursor is.
struct Setting {
  MakeContext context;
  int location = adUseServer;
};
void PrintTo(const Setting& setting, std::ostream* out);
std::string nameOf(const testing::TestParamInfo<Setting>& info);
/// Both cursor locations; the server's alone; the client's alone.
std::vector<Setting> anywhere(const MakeContext& context);
std::vector<Setting> onServer(const MakeContext& context);
std::vector<Setting> onClient(const MakeContext& context);

class Fixture : public testing::TestWithParam<Setting> {
 protected:
  Fixture();

  /// A recordset on the first connection at the setting's cursor location.
  Ref<Recordset> open(const sql::Text& statement, int lock = adLockReadOnly) {
    return open(connection, statement, lock);
  }
  Ref<Recordset> open(const Ref<Connection>& on, const sql::Text& statement, int lock = adLockReadOnly);
  Ref<Recordset> openForWrite(const sql::Text& statement) { return open(statement, adLockOptimistic); }
  Ref<Recordset> list() { return open(u"SELECT Status, Bezeichnung FROM Vertriebsstati ORDER BY Status"); }
  /// What the table holds, read over a connection of its own: cells joined by '|', rows by ' / ', Null as
  /// "Null".
  String stored(
      const sql::Text& statement = u"SELECT Status, Bezeichnung FROM Vertriebsstati ORDER BY Status");

  std::unique_ptr<Context> context;
  Ref<Connection> connection;
};

class RecordsetTest : public Fixture {};   // both cursor locations
class KeysetTest : public Fixture {};      // rules of the server's cursor
class SnapshotTest : public Fixture {};    // rules of the client's cursor
class ConnectionTest : public Fixture {};  // no matter where the cursor is

/// Keys of the rows from the current one on, joined by blanks.
String keysFrom(Recordset& rs);
String key(Recordset& rs);

}  // namespace zqn::ado::suite
