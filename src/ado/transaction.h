// SPDX-License-Identifier: MIT
//
// A transaction of a connection that rolls back by itself: what is left early, by an error too, is undone as a
// whole.
//
//     ado::Transaction transaction(*connection);
//     connection->Execute(u"DELETE FROM Keywords");
//     transaction.commit();
#pragma once

#include "ado/connection.h"

namespace zqn::ado {

class Transaction {
 public:
  /// Begins it by the statement `begin`. The provider's errors; nothing was begun then. `connection` must
  /// outlive it.
  explicit Transaction(Connection& connection, const sql::Text& begin = u"BEGIN");
  /// Rolls back unless commit has succeeded. A database that has rolled back by itself, or cannot be reached
  /// any more, is no error: nothing of the transaction is written either way.
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  /// Writes it for good. The provider's errors; it is rolled back then at the end of its life. To be called at
  /// most once.
  void commit();

 private:
  Connection& connection_;
  bool committed_ = false;
};

/// What a Provider implements besides when it can tell whether a statement has begun a transaction that stands
/// open.
class TransactionState {
 public:
  virtual ~TransactionState() = default;
  virtual bool inTransaction() const = 0;
};

/// A transaction stands open on the connection: what was written since is lost unless a COMMIT follows. False
/// for a provider that cannot tell. Error 3709 when closed.
bool inTransaction(const Connection& connection);

}  // namespace zqn::ado
