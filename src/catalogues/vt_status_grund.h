// SPDX-License-Identifier: MIT
//
// frmVTStatusGrund, kind 36: asks why a sales status is about to change. It touches no table; the reason goes
// back to the host, an empty text when the person backs out. The close box confirms, as OK does.
#pragma once

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/text_box.h"

namespace zqn {

class frmVTStatusGrund final : public Form {
 public:
  frmVTStatusGrund();

  /// Out: the reason as typed, or "" when it was cancelled. What is handed in is not shown.
  Variant SelectedKey;

  /// Shows the form modally and returns when it has closed.
  void ShowData() { Show(); }

 private:
  void Form_Load();
  void Form_KeyDown(int KeyCode, int Shift);
  void Form_Unload(int& Cancel);
  void OKButton_Click();
  void CancelButton_Click();

  CommandButton& OKButton = Get<CommandButton>(u"OKButton");
  CommandButton& CancelButton = Get<CommandButton>(u"CancelButton");
  Label& lblInfo = Get<Label>(u"lblInfo");
  TextBox& txtGrund = Get<TextBox>(u"txtGrund");

  /// A button has decided the outcome.
  bool mClosing = false;
};

}  // namespace zqn
