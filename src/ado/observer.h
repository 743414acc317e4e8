// SPDX-License-Identifier: MIT
//
// Tracing of a connection: an Observer hears of every operation.
#pragma once

#include "runtime/string.h"

namespace zqn::ado {

/// `Close` is that of a recordset; `Field` is each reading or assigning of a field's Value, not the drawing
/// of a bound list.
enum class Operation { Open, Execute, Update, AddNew, Requery, Find, Close, Field };

/// Tracing of a connection: a host that keeps a log of statements, or makes operations fail on purpose, hangs
/// an Observer on it.
///
///     struct Log : ado::Observer {
///       void Before(ado::Operation what, StringView statement, StringView) override { ... }
///     };
///     connection->observer(&log);
class Observer {
 public:
  virtual ~Observer() = default;

  /// Runs before each operation, an `Update` that a move implies included, also when the statement is invalid
  /// and will be refused. `statement` is the text that the recordset was opened with, or that is executed;
  /// `criterion` is that of Find, else empty.
  ///
  /// A RuntimeError thrown here fails the operation, with the effect that its failure always has: a failed
  /// Open or Requery leaves the recordset closed, a failed Close leaves it open, a failed Update leaves the
  /// edit pending, a failed AddNew or Find leaves everything as it was, a failed assignment leaves that one
  /// field's value.
  virtual void Before(Operation operation, StringView statement, StringView criterion) = 0;
};

}  // namespace zqn::ado
