// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: what its statements share: the connection, a second one for long lists, the
// tables, the transaction that the caller has begun, and statements that are kept.
#pragma once

#include <functional>
#include <list>
#include <unordered_map>

#include "ado/odbc/link.h"
#include "ado/odbc/odbc.h"
#include "ado/odbc/tables.h"
#include "ado/odbc/translate.h"

namespace zqn::ado::odbc {

class OdbcKeyset;
class Query;

class Server {
 public:
  Server(StringView connectionString, const OdbcOptions& options);
  ~Server();

  Link& link() noexcept { return link_; }
  const Dialect& dialect() const noexcept { return link_.dialect(); }
  Tables& tables() noexcept { return tables_; }

  /// The connection for a long list's keys: it stands in a transaction of its own. Connected when it is first
  /// needed.
  Link& reader();
  /// The keyset that reads through `reader`; one at a time, as all share its view of the database.
  OdbcKeyset* reading = nullptr;

  /// Tables may have changed: they are asked for again.
  void forgetTables() noexcept;

  /// The statement as this server takes it. Error -2147217900 for what is no single statement.
  Translation translated(StringView statement);

  /// Before a statement that the caller has asked for. Error -2147467259 while the caller is inside a
  /// transaction that is lost: its connection has dropped, or the server has given it up by itself. Only
  /// ROLLBACK (false when there is nothing to run) and COMMIT (an error once more) end it; going back to a
  /// savepoint does not. So no half of a transaction is ever written.
  bool mayRun(const Translation& statement);
  /// The statement has run, or has not, with this failure.
  void ran(const Translation& statement, const RuntimeError* failure = nullptr);
  bool inTransaction() const noexcept { return inTransaction_; }

  /// Before an INSERT, where the number that it counts is asked for behind it: an older one is never taken for
  /// it.
  void forgetNumber();

  /// A prepared statement of the provider's own, already in the server's words. Valid until the next call.
  Query& kept(const String& text);
  void tell(StringView statement) const {
    if (ran_) ran_(statement);
  }
  void tellRun(StringView statement, std::span<const Value> parameters) const {
    if (runs_) runs_(statement, parameters);
  }

 private:
  String connectionString_;
  std::chrono::seconds loginTimeout_;
  std::function<void(StringView)> ran_;
  std::function<void(StringView, std::span<const Value>)> runs_;
  Link link_;
  std::unique_ptr<Link> reader_;
  Tables tables_;
  bool inTransaction_ = false;
  int begunOn_ = 0;  // the connection of the transaction: a row that is read connects again, too
  std::unordered_map<String, Translation> translated_;         // until the schema changes
  std::list<std::pair<String, std::unique_ptr<Query>>> kept_;  // most recently used first
};

}  // namespace zqn::ado::odbc
