// SPDX-License-Identifier: MIT
//
// A provider that looks on: what the recordsets and dialogs above write, and every failure, also one that a
// dialog passes over.
//
//     Watch watch;
//     auto connection = Ref<ado::Connection>::make(watched(ado::odbcProvider(address), watch));
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ado/provider.h"
#include "runtime/error.h"

namespace zqn::load {

struct Watch {
  std::int64_t rowsChanged = 0;
  /// An UPDATE of a row that has changed or is gone: no row was hit, or the server gave up the statement.
  std::int64_t conflicts = 0;
  /// All others.
  std::vector<RuntimeError> failures;
};

/// `watch` must outlive the provider.
std::unique_ptr<ado::Provider> watched(std::unique_ptr<ado::Provider> provider, Watch& watch);

}  // namespace zqn::load
