// SPDX-License-Identifier: MIT
#include "desktop/qt/shield.h"

#include <exception>
#include <utility>

namespace zqn::qt {

namespace {

// Widgets live on one thread, and so does everything that they call.
std::exception_ptr kept;

void keep() {
  if (!kept) kept = std::current_exception();
}

}  // namespace

void shielded(EventOwner& owner, const char16_t* event, const std::function<void()>& act) {
  try {
    try {
      act();
    } catch (const RuntimeError& failure) {
      owner.eventFailed(event, failure);
    }
  } catch (...) {
    keep();
  }
}

void rethrowShielded() {
  if (kept) std::rethrow_exception(std::exchange(kept, nullptr));
}

}  // namespace zqn::qt
