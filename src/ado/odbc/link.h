// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: one connection to the server. When it drops it says so once; the next use
// connects again.
#pragma once

#include <chrono>
#include <memory>

#include "ado/odbc/diagnostics.h"
#include "ado/odbc/dialect.h"

namespace zqn::ado::odbc {

struct FreeHandle {
  SQLSMALLINT kind = SQL_HANDLE_STMT;
  /// What the handle was made on: it stays for as long as the handle does. So a statement outlives a
  /// connection that has dropped and been replaced.
  std::shared_ptr<void> parent = nullptr;
  using pointer = SQLHANDLE;
  void operator()(SQLHANDLE handle) const noexcept {
    if (kind == SQL_HANDLE_DBC) SQLDisconnect(handle);
    SQLFreeHandle(kind, handle);
  }
};
using Handle = std::unique_ptr<void, FreeHandle>;

class Link {
 public:
  /// Connects.
  Link(String connectionString, std::chrono::seconds loginTimeout);
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;

  const Dialect& dialect() const noexcept { return *dialect_; }
  /// The product's name as the driver reports it: the source of errors.
  const String& product() const noexcept { return product_; }

  /// The size that the driver makes up for a column whose longest text it does not know; 0 for none.
  SQLULEN madeUpSize() const noexcept { return madeUpSize_; }

  /// A new statement handle; connects again first when the connection has dropped.
  Handle statement();
  /// Counts the connections: a statement handle belongs to one of them.
  int generation() const noexcept { return generation_; }
  bool dropped() const noexcept { return dropped_; }
  /// The server has given up a transaction on this connection by itself (a deadlock, a conflict) since
  /// `beganTransaction`.
  bool gaveUp() const noexcept { return gaveUp_; }
  void beganTransaction() noexcept { gaveUp_ = false; }
  /// Raises the drop when the connection has gone without a call that said so: what a driver has told since
  /// then may be half of it.
  void requireAlive();

  /// Runs a statement of which the result does not matter. Not translated.
  void run(StringView statement);
  /// The last failure of a statement handle. Notes when it says that the connection is gone.
  RuntimeError failure(const Handle& statement);
  RuntimeError failure(const Diagnostic& diagnostic);

 private:
  void connect();
  void connectOnce(const String& connectionString);
  /// A text that the driver tells of the connection.
  String told(SQLUSMALLINT what);
  bool isDead() const noexcept;

  String connectionString_;
  std::chrono::seconds loginTimeout_;
  std::shared_ptr<void> connection_;
  const Dialect* dialect_ = nullptr;
  String product_ = u"ODBC";
  SQLULEN madeUpSize_ = 0;
  int generation_ = 0;
  bool dropped_ = true;
  bool gaveUp_ = false;
};

/// The driver manager's handle of this process.
SQLHENV environment();

}  // namespace zqn::ado::odbc
