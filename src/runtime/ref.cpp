// SPDX-License-Identifier: MIT
#include "runtime/ref.h"

#include <atomic>

namespace zqn {

void Owned::keep() noexcept { std::atomic_ref(owners_).fetch_add(1, std::memory_order_relaxed); }

void Owned::release() noexcept {
  if (std::atomic_ref(owners_).fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
}

}  // namespace zqn
