// SPDX-License-Identifier: MIT
//
// The rules of recordsets on SQLite.
#include "testing/provider_suite/suite.h"
#include "runtime/digits.h"
#include "testing/temporary_file.h"

namespace zqn::ado::suite {

namespace {

class SqliteContext : public Context {
 public:
  Ref<Connection> connect() override { return openSqlite(file_.path()); }
  String textColumn(int size) const override { return u"VARCHAR(" + digits(size) + u") COLLATE ZQN_TEXT"; }
  String countedKey() const override { return u"INTEGER PRIMARY KEY"; }
  bool ignoresTrailingBlanks() const override { return true; }
  bool updatesWithoutKey() const override { return true; }

 private:
  sqlite::TemporaryFile file_;
};

std::unique_ptr<Context> sqliteContext() { return std::make_unique<SqliteContext>(); }

}  // namespace

INSTANTIATE_TEST_SUITE_P(Sqlite, RecordsetTest, testing::ValuesIn(anywhere(sqliteContext)), nameOf);
INSTANTIATE_TEST_SUITE_P(Sqlite, KeysetTest, testing::ValuesIn(onServer(sqliteContext)), nameOf);
INSTANTIATE_TEST_SUITE_P(Sqlite, SnapshotTest, testing::ValuesIn(onClient(sqliteContext)), nameOf);
INSTANTIATE_TEST_SUITE_P(Sqlite, ConnectionTest, testing::ValuesIn(onServer(sqliteContext)), nameOf);

}  // namespace zqn::ado::suite
