// SPDX-License-Identifier: MIT
//
// The runs of statements that an action comes to, as the driver is given them.
#pragma once

#include <cstdint>
#include <vector>

#include "ado/row_store.h"
#include "runtime/string.h"

namespace zqn::load {

/// A value that owns its text.
struct Argument {
  ado::Value::Kind kind = ado::Value::Kind::Null;
  std::int64_t integer = 0;
  double real = 0;
  String text;
};

struct Run {
  String statement;
  std::vector<Argument> arguments;
};

using Recording = std::vector<Run>;

}  // namespace zqn::load
