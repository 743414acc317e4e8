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

/// Hears of what the routines of a thread pass over, from its making to its end; an inner one hears in place
/// of those around it.
class PassedOverListener {
 public:
  PassedOverListener(const PassedOverListener&) = delete;
  PassedOverListener& operator=(const PassedOverListener&) = delete;

  /// The innermost listener of the calling thread; nullptr when nobody listens.
  static PassedOverListener* current() noexcept;

  /// A statement or a test has failed and was passed over. Must not raise.
  virtual void passedOver(const RuntimeError& failure) = 0;

 protected:
  PassedOverListener() noexcept;
  ~PassedOverListener();

 private:
  PassedOverListener* outer_;
};

class ResumeNext {
 public:
  /// Statements are passed over when they fail; in the mode `Raise` they are not, and `step` adds nothing to
  /// plain code. For a routine whose error mode is decided elsewhere.
  enum class Mode { PassOver, Raise };
  explicit ResumeNext(Mode mode = Mode::PassOver) noexcept : mode_(mode) {}

  /// Runs one statement; a run-time error ends the statement and is remembered.
  template <class Statement>
  void operator()(Statement&& statement) {
    try {
      std::forward<Statement>(statement)();
    } catch (const RuntimeError& failure) {
      if (mode_ == Mode::Raise) throw;
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
      if (mode_ == Mode::Raise) throw;
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
  void remember(const RuntimeError& failure);

  Mode mode_;
  std::int32_t number_ = 0;
  String description_;
};

}  // namespace zqn
