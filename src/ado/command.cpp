// SPDX-License-Identifier: MIT
#include "ado/command.h"

#include "ado/raise.h"

namespace zqn::ado {

std::int64_t Command::Execute(int options) {
  if (connection_.isNothing() || connection_->State() == adStateClosed) raise(error::InvalidConnection);
  return connection_->Execute(text_, options);
}

}  // namespace zqn::ado
