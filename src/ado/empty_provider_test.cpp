// SPDX-License-Identifier: MIT
//
// The least that a provider must write: it answers every statement with no rows. Whoever adds a database
// begins here.
#include <gtest/gtest.h>

#include "ado/recordset.h"
#include "testing/runtime.h"

namespace zqn::ado {

namespace {

class EmptyStatement : public Statement {
 public:
  explicit EmptyStatement(bool returnsRows) {
    if (returnsRows)
      columns_ = std::make_shared<const Columns>(Columns{{u"Spalte", adVarWChar, 10, u"", u""}});
  }
  void open(std::span<const Value>) override {}
  bool fetch(RowStore&, std::size_t) override { return false; }
  void close() noexcept override {}
  std::shared_ptr<const Columns> columns() const override { return columns_; }
  std::int64_t rowsAffected() const override { return 0; }

 private:
  std::shared_ptr<const Columns> columns_ = std::make_shared<const Columns>();
};

class EmptyProvider : public Provider {
 public:
  std::unique_ptr<Statement> prepare(StringView text, Purpose) override {
    ++prepared;
    return std::make_unique<EmptyStatement>(text.starts_with(u"SELECT"));
  }
  Condition sameValue(const Column& column, const Value& read) const override {
    return {quoted(column.baseColumn) + u" IS NOT DISTINCT FROM ?", {read}};
  }
  String name() const override { return u"Empty"; }

  int prepared = 0;
};

}  // namespace

TEST(EmptyProvider, GivesEmptyRecordsets) {
  const auto connection = Ref<Connection>::make(std::make_unique<EmptyProvider>());
  for (const int location : {adUseServer, adUseClient}) {
    Recordset rs;
    rs.CursorLocation(location);
    rs.Open(u"SELECT Spalte FROM Tabelle ORDER BY Spalte", connection, adOpenKeyset, adLockOptimistic);
    EXPECT_TRUE(rs.IsEOF() && rs.IsBOF());
    EXPECT_EQ(rs.Fields(0).Name(), u"Spalte");
    EXPECT_EQ(errorNumberOf([&] { rs.AddNew(); }), error::FeatureNotAvailable) << "it names no key";
  }
  EXPECT_EQ(connection->Execute(u"DELETE FROM Tabelle"), 0);
}

TEST(StatementCache, PreparesEachShapeOnce) {
  auto provider = std::make_unique<EmptyProvider>();
  const EmptyProvider& counter = *provider;
  const auto connection = Ref<Connection>::make(std::move(provider));
  for (const char16_t* key : {u"10", u"11", u"12"}) {
    Recordset().Open(u"SELECT * FROM T WHERE K=" + sql::value(key), connection, adOpenKeyset,
                     adLockOptimistic);
  }
  EXPECT_EQ(counter.prepared, 1);
  for (const char16_t* key : {u"10", u"11"}) connection->Execute(u"DELETE FROM T WHERE K=" + sql::value(key));
  EXPECT_EQ(counter.prepared, 2);
}

TEST(StatementCache, KeepsTheMostRecentlyUsed) {
  EmptyProvider provider;
  StatementCache cache(2);
  cache.get(provider, u"a", Purpose::Plain);
  cache.get(provider, u"b", Purpose::Plain);
  cache.get(provider, u"a", Purpose::Plain);
  cache.get(provider, u"c", Purpose::Plain);
  EXPECT_EQ(cache.size(), 2u);
  EXPECT_EQ(provider.prepared, 3);
  cache.get(provider, u"a", Purpose::Plain);
  EXPECT_EQ(provider.prepared, 3);
  cache.get(provider, u"b", Purpose::Plain);
  EXPECT_EQ(provider.prepared, 4);
  cache.get(provider, u"b", Purpose::Keyed);
  EXPECT_EQ(provider.prepared, 5) << "another purpose is another statement";
}

}  // namespace zqn::ado
