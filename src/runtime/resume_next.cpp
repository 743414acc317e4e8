// SPDX-License-Identifier: MIT
#include "runtime/resume_next.h"

namespace zqn {

namespace {

thread_local PassedOverListener* innermost = nullptr;

}  // namespace

PassedOverListener::PassedOverListener() noexcept : outer_(std::exchange(innermost, this)) {}

PassedOverListener::~PassedOverListener() { innermost = outer_; }

PassedOverListener* PassedOverListener::current() noexcept { return innermost; }

void ResumeNext::remember(const RuntimeError& failure) {
  number_ = failure.number();
  description_ = failure.description();
  if (innermost != nullptr) innermost->passedOver(failure);
}

}  // namespace zqn
