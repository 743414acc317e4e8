// SPDX-License-Identifier: MIT
#include "ado/transaction.h"

#include "runtime/error.h"

namespace zqn::ado {

Transaction::Transaction(Connection& connection, const sql::Text& begin) : connection_(connection) {
  connection_.Execute(begin);
}

Transaction::~Transaction() {
  if (committed_) return;
  try {
    connection_.Execute(u"ROLLBACK");
  } catch (const RuntimeError&) {
    // The database has already rolled back by itself, after a full disk or a lost connection for instance.
  }
}

bool inTransaction(const Connection& connection) {
  const auto* state = dynamic_cast<const TransactionState*>(&connection.provider());
  return state != nullptr && state->inTransaction();
}

void Transaction::commit() {
  connection_.Execute(u"COMMIT");
  committed_ = true;
}

}  // namespace zqn::ado
