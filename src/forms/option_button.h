// SPDX-License-Identifier: MIT
//
// A choice among several: the options of one container are a group, and at most one of them is chosen.
//
//     optGueltigFuer(2).Value(true);  // the others become False; Click comes for this one alone
//
// Tab reaches only the chosen option of a group, or any while none is chosen. An option that gets the focus
// other than by mouse becomes the chosen one; arrow keys lead from one to the next.
#pragma once

#include <vector>

#include "forms/captioned_control.h"

namespace zqn {

class OptionButton : public CaptionedControl {
 public:
  OptionButton(Form& form, const ControlDesign& design, int tabIndex);

  bool Value() const noexcept { return value_; }
  /// True chooses it and makes it a tab stop: the others of its group become False without Click, and Click
  /// is raised when it was not chosen. False raises nothing and may leave the group without a choice.
  void Value(bool value);

  bool isTabStop() const override;
  void focusSettled(FocusCause cause) override;
  /// Arrows go to the next option of the group that can be used, and around at its end; Space chooses.
  bool ownKey(const KeyStroke& stroke) override;
  void clicked() override { Value(true); }

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  /// All options of its container in the tab order, itself included.
  std::vector<OptionButton*> group() const;
  OptionButton* neighbour(int step) const;

  bool value_;
};

}  // namespace zqn
