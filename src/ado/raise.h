// SPDX-License-Identifier: MIT
//
// Inside the engine: an error of ADO's own, with ADO's words and name.
//
//     if (!cursor_) raise(error::ObjectClosed);
#pragma once

#include "runtime/error.h"

namespace zqn::ado {

[[noreturn]] inline void raise(std::int32_t number, String description) {
  throw RuntimeError(number, std::move(description), u"ADODB");
}
[[noreturn]] inline void raise(std::int32_t number) { raise(number, error::description(number)); }

}  // namespace zqn::ado
