// SPDX-License-Identifier: MIT
//
// Watches a connection for a script: keeps the statements that dialogs hand over, and makes operations fail
// that a script has named.
//
//     FaultInjector faults;
//     connection->observer(&faults);
//     faults.arm({ado::Operation::Update, u"Vertriebsstati", RuntimeError(error::RowConflict)});
#pragma once

#include <vector>

#include "ado/observer.h"
#include "runtime/error.h"

namespace zqn::script {

struct Fault {
  ado::Operation operation;
  /// What the statement holds, for Find the statement or the criterion, spelled exactly; empty matches all.
  String match;
  RuntimeError failure;
  /// How many matching operations fail.
  int times = 1;
};

class FaultInjector : public ado::Observer {
 public:
  /// From now on; faults that match the same operation are used up in the order of arming.
  void arm(Fault fault) { faults_.push_back(std::move(fault)); }
  /// The statements handed to Open and Execute since last asked, those that failed included.
  std::vector<String> takeStatements();

  void Before(ado::Operation operation, StringView statement, StringView criterion) override;

 private:
  std::vector<Fault> faults_;
  std::vector<String> statements_;
};

}  // namespace zqn::script
