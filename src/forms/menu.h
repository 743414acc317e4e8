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

#include "forms/control.h"

namespace zqn {

class Menu : public Control {
 public:
  Menu(Form& form, const ControlDesign& design, int tabIndex);

  const String& Caption() const noexcept { return caption_; }
  void Caption(StringView caption);
  /// Its visible items in the order of the roster.
  std::vector<Menu*> items() const;

  bool takesFocus() const noexcept override { return false; }
  bool isDrawn() const noexcept override { return false; }
  String content() const override { return caption_; }

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  String caption_;
};

}  // namespace zqn
