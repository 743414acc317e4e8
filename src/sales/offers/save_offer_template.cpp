// SPDX-License-Identifier: MIT
#include "sales/offers/save_offer_template.h"

#include "ado/recordset.h"
#include "forms/message_box.h"
#include "forms/picture_box.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"
#include "sales/basics/pictures.h"

namespace zqn {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"Label1",       Label,         u"Bitte wählen Sie einen Namen, unter dem Sie das Angebot als Vorlage zur Verfügung "
                                     u"stellen möchten:",
                                                     690,  240, 4545, 510},
    {u"VorlagenName", TextBox,       u"",            690,  840, 4545, 285, {.MaxLength = 50}},
    {u"btnCancel",    CommandButton, u"Abbrechen",  4050, 1470, 1215, 315, {.Cancel = true}},
    {u"btnOK",        CommandButton, u"OK",         2730, 1470, 1215, 315, {.Default = true}},
    {u"picOpen",      PictureBox,    u"",            105,  240,  480, 480},
};
// clang-format on

constexpr FormDesign form{u"frmSaveOfferTemplate", u"Angebot als Vorlage speichern", 5400, 1920, roster};

}  // namespace plan

}  // namespace

frmSaveOfferTemplate::frmSaveOfferTemplate() : Form(plan::form) {
  Get<PictureBox>(u"picOpen").Picture(&pictures::folder);
  VorlagenName.Change = [this] { btnOK.Enabled(!Trim(VorlagenName.Text()).empty()); };
  VorlagenName.GotFocus = [this] {
    VorlagenName.SelStart(0);
    VorlagenName.SelLength(static_cast<int>(VorlagenName.Text().size()));
  };
  btnOK.Click = [this] { btnOK_Click(); };
  btnCancel.Click = [this] { UnloadMe(); };
}

ado::sql::Text frmSaveOfferTemplate::statement() const {
  return u"Select Vorlage from Angebotskopf Where Angebotsnummer=" + ado::sql::number(SelectedKey);
}

void frmSaveOfferTemplate::ShowData() {
  ResumeNext step;
  step([&] { ensureLoaded(); });
  if (step.test([&] { return Val(concatenate(SelectedKey)) == 0; })) {
    MsgBox(u"Keine Angebotsnummer angegeben.", msgbox::Exclamation, u"Keine Angebotsnummer");
    return step([&] { UnloadMe(); });
  }
  readName();
  if (Trim(VorlagenName.Text()).empty())
    step([&] { VorlagenName.Text(u"Angebot " + concatenate(SelectedKey)); });
  step([&] { Show(); });
}

void frmSaveOfferTemplate::readName() {
  ResumeNext step;
  ado::Recordset rs;
  step([&] { rs.Open(statement(), Connection, ado::adOpenKeyset, ado::adLockOptimistic); });
  if (rs.State() == ado::adStateClosed) return;
  if (!rs.IsEOF()) step([&] { VorlagenName.Text(concatenate(rs.Fields(u"Vorlage").Value())); });
  step([&] { rs.Close(); });
}

void frmSaveOfferTemplate::btnOK_Click() {
  try {
    ado::Recordset rs;
    rs.Open(statement(), Connection, ado::adOpenKeyset, ado::adLockOptimistic);
    if (!rs.IsEOF()) {
      rs.Fields(u"Vorlage").Value(VorlagenName.Text());
      rs.Update();
    }
    rs.Close();
  } catch (const RuntimeError& failure) {
    VorlagenName.SetFocus();
    MsgBox(u"Beim Speichern ist folgender Fehler aufgetreten: " + failure.description(), msgbox::Exclamation,
           u"Fehler " + CStr(failure.number()));
    return;
  }
  UnloadMe();
}

}  // namespace zqn
