// SPDX-License-Identifier: MIT
#include "catalogues/vt_status_grund.h"

#include "forms/message_box.h"
#include "runtime/resume_next.h"

namespace zqn {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"OKButton",             CommandButton, u"OK",                 4680,  120, 1215,  375},
    {u"CancelButton",         CommandButton, u"Abbrechen",          4680,  600, 1215,  375},
    {u"lblInfo",              Label,         u"",                    120,  120, 4335, 1095},
    {u"txtGrund",             TextBox,       u"",                    120, 1680, 5775, 1695, {.MultiLine = true}},
    {u"lblGrundbeschreibung", Label,         u"Grundbeschreibung:",  120, 1440, 1575,  255},
};
// clang-format on

constexpr FormDesign form{u"frmVTStatusGrund", u"Vertriebsstatus ändern", 6030, 3495, roster};

}  // namespace plan

constexpr std::size_t shortestReason = 5;
constexpr StringView title = u"TALVEX Software";

}  // namespace

frmVTStatusGrund::frmVTStatusGrund() : Form(plan::form) {
  Load = [this] { Form_Load(); };
  Activate = [this] { txtGrund.SetFocus(); };
  KeyDown = [this](int& KeyCode, int Shift) { Form_KeyDown(KeyCode, Shift); };
  Unload = [this](int& Cancel) { Form_Unload(Cancel); };
  OKButton.Click = [this] { OKButton_Click(); };
  CancelButton.Click = [this] { CancelButton_Click(); };
}

void frmVTStatusGrund::Form_Load() {
  lblInfo.Caption(
      u"Es wurde der Vertriebsstatus und damit auch der Pipelinestatus geändert. "
      u"Geben Sie, bitte den Grund zum Wechsel ein und bestätigen Sie mit OK. "
      u"Wenn Sie den Vertriebsstatus nicht wechseln möchten klicken Sie, bitte auf Abbrechen");
  mClosing = false;
}

void frmVTStatusGrund::Form_KeyDown(int KeyCode, int Shift) {
  if (Shift != shift::None) return;
  ResumeNext step;
  if (KeyCode == key::F9) step([&] { OKButton_Click(); });
  if (KeyCode == key::F10) step([&] { CancelButton_Click(); });
}

void frmVTStatusGrund::Form_Unload(int& Cancel) {
  if (mClosing) return;
  Cancel = 1;
  OKButton_Click();
}

void frmVTStatusGrund::OKButton_Click() {
  if (txtGrund.Text().size() < shortestReason) {
    MsgBox(u"Geben Sie, bitte einen Grund des Wechsels ein.", msgbox::Critical, title);
    return;
  }
  if (MsgBox(u"Möchten Sie die Änderungen speichern?", msgbox::YesNo | msgbox::Question, title) !=
      MsgBoxResult::Yes)
    return;
  SelectedKey = txtGrund.Text();
  mClosing = true;
  UnloadMe();
}

void frmVTStatusGrund::CancelButton_Click() {
  ResumeNext step;
  step([&] { SelectedKey = u""; });
  step([&] { mClosing = true; });
  step([&] { UnloadMe(); });
}

}  // namespace zqn
