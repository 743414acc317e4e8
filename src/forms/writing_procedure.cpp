// SPDX-License-Identifier: MIT
#include "forms/writing_procedure.h"

#include "forms/desktop.h"

namespace zqn {

void WritingProcedure::passedOver(const RuntimeError& failure) {
  try {
    Desktop::current().failurePassedOver(form_, procedure_, failure);
  } catch (const RuntimeError&) {
    // Without a desktop there is nobody to tell, and the procedure goes on all the same.
  }
}

}  // namespace zqn
