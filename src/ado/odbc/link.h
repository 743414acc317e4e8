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

  /// A new statement handle; connects again first when the connection has dropped.
  Handle statement();
  /// Counts the connections: a statement handle belongs to one of them.
  int generation() const noexcept { return generation_; }
  bool dropped() const noexcept { return dropped_; }

  /// Runs a statement of which the result does not matter. Not translated.
  void run(StringView statement);
  /// The last failure of a statement handle. Notes when it says that the connection is gone.
  RuntimeError failure(const Handle& statement);
  RuntimeError failure(const Diagnostic& diagnostic);

 private:
  void connect();
  String connectOnce(const String& connectionString);
  bool isDead() const noexcept;

  String connectionString_;
  std::chrono::seconds loginTimeout_;
  std::shared_ptr<void> connection_;
  const Dialect* dialect_ = nullptr;
  String product_ = u"ODBC";
  int generation_ = 0;
  bool dropped_ = true;
};

/// The driver manager's handle of this process.
SQLHENV environment();

}  // namespace zqn::ado::odbc
