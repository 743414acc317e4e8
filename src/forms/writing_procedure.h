// SPDX-License-Identifier: MIT
//
// A procedure that writes, for what its error mode passes over.
#pragma once

#include "forms/form.h"
#include "runtime/resume_next.h"

namespace zqn {

/// A procedure that writes, from its making to its end. What its error mode passes over is not told by a box,
/// but it is not lost either: the desktop's listeners hear of each failure, and the form's notice says the
/// first.
///
///     const WritingProcedure writing(*this, u"WriteRecord");
///     step([&] { WriteRecord(); });
class WritingProcedure final : private PassedOverListener {
 public:
  /// Takes the notice of an earlier procedure off the form. The name lives as long as the object.
  WritingProcedure(Form& form, const char16_t* procedure) : form_(form), procedure_(procedure) {
    form_.Notice(u"");
  }

 private:
  void passedOver(const RuntimeError& failure) override;

  Form& form_;
  const char16_t* procedure_;
};

}  // namespace zqn
