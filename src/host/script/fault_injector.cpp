// SPDX-License-Identifier: MIT
#include "host/script/fault_injector.h"

#include <algorithm>
#include <utility>

namespace zqn::script {

std::vector<String> FaultInjector::takeStatements() { return std::exchange(statements_, {}); }

void FaultInjector::Before(ado::Operation operation, StringView statement, StringView criterion) {
  if (operation == ado::Operation::Open || operation == ado::Operation::Execute)
    statements_.emplace_back(statement);
  const auto hit = std::ranges::find_if(faults_, [&](const Fault& fault) {
    const StringView match = fault.match;
    return fault.operation == operation &&
           (statement.find(match) != StringView::npos || criterion.find(match) != StringView::npos);
  });
  if (hit == faults_.end()) return;
  const RuntimeError failure = hit->failure;
  if (--hit->times == 0) faults_.erase(hit);
  throw failure;
}

}  // namespace zqn::script
