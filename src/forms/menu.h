// SPDX-License-Identifier: MIT
//
// A menu that pops up at the pointer, and its items: controls of this kind whose container is the menu. It
// stands nowhere on the form until Form::PopupMenu opens it.
//
//     {u"mnuPopup", Menu, u"Popup", 0, 0, 0, 0, {.Visible = false}},
//     {u"mnuDelete", Menu, u"&Löschen", 0, 0, 0, 0, {.Container = u"mnuPopup"}},
//     ...
//     PopupMenu(mnuPopup);  // mnuDelete_Click has run when it returns
#pragma once

#include <vector>

#include "forms/captioned_control.h"

namespace zqn {

class Menu : public CaptionedControl {
 public:
  Menu(Form& form, const ControlDesign& design, int tabIndex) : CaptionedControl(form, design, tabIndex) {}

  /// Its visible items in the order of the roster.
  std::vector<Menu*> items() const;

  bool takesFocus() const noexcept override { return false; }
  bool isDrawn() const noexcept override { return false; }
};

}  // namespace zqn
