// SPDX-License-Identifier: MIT
#include "ado/odbc/odbc.h"

#include <array>

#include "ado/field_values.h"
#include "ado/odbc/keyset.h"
#include "ado/odbc/statement.h"
#include "ado/odbc/wide.h"
#include "ado/transaction.h"

namespace zqn::ado {

namespace {

class OdbcProvider : public Provider, public TransactionState {
 public:
  explicit OdbcProvider(std::shared_ptr<odbc::Server> server) : server_(std::move(server)) {}

  std::unique_ptr<Statement> prepare(StringView text, Purpose purpose) override {
    return std::make_unique<odbc::OdbcStatement>(server_, text, purpose);
  }
  std::unique_ptr<Keyset> keyset(StringView text, std::shared_ptr<const Columns> known) override {
    return odbc::OdbcKeyset::make(server_, text, std::move(known));
  }
  Condition sameValue(const Column& column, const Value& read) const override {
    const String name = quoted(column.baseColumn);
    if (read.kind == Value::Kind::Null) return {name + u" IS NULL", {}};
    const String equal = name + u"=?";
    if (!isTextType(column.type) || read.kind != Value::Kind::Text) return {equal, {read}};
    const odbc::Dialect& dialect = server_->dialect();
    const String exact = String(dialect.exactBefore) + name + String(dialect.exactBehind) + u"=?";
    // The plain comparison of a key lets the server find the row by its index.
    if (!column.key) return {exact, {read}};
    return {equal + u" AND " + exact, {read, read}};
  }
  bool inTransaction() const override { return server_->inTransaction(); }
  String name() const override { return server_->link().product(); }

 private:
  std::shared_ptr<odbc::Server> server_;
};

}  // namespace

std::unique_ptr<Provider> odbcProvider(StringView connectionString, const OdbcOptions& options) {
  return std::make_unique<OdbcProvider>(std::make_shared<odbc::Server>(connectionString, options));
}

Ref<Connection> openOdbc(StringView connectionString, const OdbcOptions& options) {
  return Ref<Connection>::make(odbcProvider(connectionString, options));
}

std::vector<String> odbcDrivers() {
  std::vector<String> names;
  std::array<SQLWCHAR, 256> name = {};
  SQLSMALLINT length = 0;
  const auto next = [&](SQLUSMALLINT which) {
    return SQLDriversW(odbc::environment(), which, name.data(), static_cast<SQLSMALLINT>(name.size()),
                       &length, nullptr, 0, nullptr);
  };
  for (SQLRETURN result = next(SQL_FETCH_FIRST); SQL_SUCCEEDED(result); result = next(SQL_FETCH_NEXT))
    names.emplace_back(odbc::asText(name.data()));
  return names;
}

}  // namespace zqn::ado
