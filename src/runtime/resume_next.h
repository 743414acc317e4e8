// SPDX-License-Identifier: MIT
//
// The second of the two error modes. A routine without a handler is plain code: what fails leaves it. A
// routine that runs statement by statement names its statements, and a failing one is skipped:
//
//     ResumeNext step;
//     step([&] { rsListe->Requery(); });
//     step([&] { TDBList1.ReBind(); });
//     if (step.test([&] { return rsListe->RecordCount() == 0; })) { ... }
//
// Only RuntimeError is skipped: a defect of the program is never swallowed. The mode belongs to one
// activation of one routine; a routine called inside a statement has the mode that it states itself.
#pragma once

#include <cstdint>
#include <utility>

#include "runtime/error.h"

namespace zqn {

class ResumeNext {
 public:
  /// Runs one statement; a run-time error ends the statement and is remembered.
  template <class Statement>
  void operator()(Statement&& statement) {
    try {
      std::forward<Statement>(statement)();
    } catch (const RuntimeError& failure) {
      remember(failure);
    }
  }

  /// The condition of a block If. True when the condition itself fails: execution goes on with the first
  /// statement inside.
  template <class Condition>
  bool test(Condition&& condition) {
    try {
      return static_cast<bool>(std::forward<Condition>(condition)());
    } catch (const RuntimeError& failure) {
      remember(failure);
      return true;
    }
  }

  /// Number of the last failure, 0 for none. A later success does not clear it; Clear does.
  std::int32_t Number() const noexcept { return number_; }
  /// Its words; empty when Number is 0.
  const String& Description() const noexcept { return description_; }
  void Clear() noexcept {
    number_ = 0;
    description_.clear();
  }

 private:
  void remember(const RuntimeError& failure) {
    number_ = failure.number();
    description_ = failure.description();
  }

  std::int32_t number_ = 0;
  String description_;
};

}  // namespace zqn
