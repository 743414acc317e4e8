// SPDX-License-Identifier: MIT
#include "forms/writing_procedure.h"

#include "forms/desktop.h"

namespace zqn {

void WritingProcedure::passedOver(const RuntimeError& failure) {
  Desktop::current().failurePassedOver(form_, procedure_, failure);
}

}  // namespace zqn
