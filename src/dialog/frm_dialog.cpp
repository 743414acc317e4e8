// SPDX-License-Identifier: MIT
#include "dialog/frm_dialog.h"

#include "dialog/frm_dialog_roster.h"
#include "forms/desktop.h"
#include "forms/message_box.h"
#include "forms/names.h"
#include "forms/writing_procedure.h"
#include "frontend/basics/bas_basis.h"
#include "frontend/basics/bas_general.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"

namespace zqn {

frmDialog::frmDialog(DefinitionMaker maker) : Form(frmDialogDesign), maker_(maker) {
  Load = [this] { objSendKeys = ObjectFactory::current().create<ZQSendKeys>(u"ZQBSendKeys.ZQSendKeys"); };
  Activate = [this] { Form_Activate(); };
  KeyDown = [this](int& KeyCode, int Shift) { Form_KeyDown(KeyCode, Shift); };
  KeyPress = [this](int& KeyAscii) { Form_KeyPress(KeyAscii); };
  Unload = [this](int&) { Form_Unload(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdNew.Click = [this] { cmdNew_Click(); };
  cmdDelete.Click = [this] { cmdDelete_Click(); };
  chk1.Click = [this] { chk1_Click(); };
  wireFields();
}

void frmDialog::wireFields() {
  tdblShow.keepsEnter(true);
  tdblShow.GotFocus = [this] { paintList(colour::Highlight, colour::WindowBackground); };
  tdblShow.LostFocus = [this] { paintList(colour::ButtonFace, colour::WindowText); };
  tdblShow.RowColChange = [this] { tdblShow_RowColChange(); };
  tdblShow.DblClick = [this] { pick(); };
  tdblShow.KeyPress = [this](int& KeyAscii) {
    if (KeyAscii == key::Enter) pick();
  };
  for (const StringView name : {u"txtKey", u"txtKeyText", u"txtZusatz", u"txtLangtext"}) {
    control(name).GotFocus = [this] { SelectActiveText(); };
  }
  txtKey.Validate = [this](bool&) {
    FindKey();
    UpdateOK();
  };
  for (TDBNumber* number : {&tdbnSkTage(0), &tdbnSkTage(1), &tdbnSkTage(2), &tdbnPercent(0), &tdbnPercent(1),
                            &tdbnPercent(2), &tdbnNettoTage}) {
    number->ValueChange = [this] { UpdateZahlungstext(); };
    number->Change = [this] { UpdateZahlungstext(); };
  }
}

// ---- construction

void frmDialog::Init(const Ref<ado::Connection>& Connection, const Variant& Key, std::int32_t Kind) {
  Init(Connection, Key, maker_ ? maker_(Kind) : nullptr);
}

void frmDialog::Init(const Ref<ado::Connection>& Connection, const Variant& Key,
                     std::unique_ptr<clsBasisDialog> Definition) {
  m_objDialog = std::move(Definition);
  handOver(definition().controls());
  definition().Init(Key, Connection);
}

void frmDialog::handOver(BasisControls& c) {
  c.cmdCancel(cmdCancel);
  c.cmdOK(cmdOK);
  c.cmdDelete(cmdDelete);
  c.cmdNew(cmdNew);
  c.lblKey(Get<Label>(u"lblKey"));
  c.lblKeyText(Get<Label>(u"lblKeyText"));
  c.txtKey(txtKey);
  c.txtKeyText(txtKeyText);
  c.lblZusatz(Get<Label>(u"lblZusatz"));
  c.txtZusatz(Get<TextBox>(u"txtZusatz"));
  c.tdblShow(tdblShow);
  c.frmDialog(*this);
  c.lblLangtext(Get<Label>(u"lblLangtext"));
  c.txtLangtext(Get<TextBox>(u"txtLangtext"));
  c.lblWoDrucken(Get<Label>(u"lblWoDrucken"));
  c.tglDruckAN(Get<ToggleButton>(u"tglDruckAN"));
  c.tglDruckBS(Get<ToggleButton>(u"tglDruckBS"));
  c.tglDruckAB(Get<ToggleButton>(u"tglDruckAB"));
  c.tglDruckAF(Get<ToggleButton>(u"tglDruckAF"));
  c.tglDruckGS(Get<ToggleButton>(u"tglDruckGS"));
  c.tglDruckLM(Get<ToggleButton>(u"tglDruckLM"));
  c.tglDruckLS(Get<ToggleButton>(u"tglDruckLS"));
  c.tglDruckRG(Get<ToggleButton>(u"tglDruckRG"));
  c.lblSkonto(Get<Label>(u"lblSkonto"));
  c.lblNetto(Get<Label>(u"lblNetto"));
  c.lblSk1(Get<Label>(u"lblSk", 0));
  c.lblSk2(Get<Label>(u"lblSk", 1));
  c.lblSk3(Get<Label>(u"lblSk", 2));
  c.lblPercent1(Get<Label>(u"lblPercent", 0));
  c.lblPercent2(Get<Label>(u"lblPercent", 1));
  c.lblPercent3(Get<Label>(u"lblPercent", 2));
  c.tdbnPercent1(tdbnPercent(0));
  c.tdbnPercent2(tdbnPercent(1));
  c.tdbnPercent3(tdbnPercent(2));
  c.lblSkTage1(Get<Label>(u"lblSkTage", 0));
  c.lblSkTage2(Get<Label>(u"lblSkTage", 1));
  c.lblSkTage3(Get<Label>(u"lblSkTage", 2));
  c.tdbnSkTage1(tdbnSkTage(0));
  c.tdbnSkTage2(tdbnSkTage(1));
  c.tdbnSkTage3(tdbnSkTage(2));
  c.lblNettoTage(Get<Label>(u"lblNettoTage"));
  c.tdbnNettoTage(tdbnNettoTage);
  c.fra(Get<Frame>(u"fra"));
  c.lblFra(Get<Label>(u"lblFra"));
  c.chk1(chk1);
  c.tdbdValidOf(tdbdValidOf);
  c.tdbdValidTo(tdbdValidTo);
  c.lblCbo1(Get<Label>(u"lblCbo", 0));
  c.lblCbo2(Get<Label>(u"lblCbo", 1));
  c.cbo1(Get<ComboBox>(u"cbo", 0));
  c.cbo2(Get<ComboBox>(u"cbo", 1));
}

clsBasisDialog& frmDialog::definition() const {
  if (!m_objDialog) throw RuntimeError(error::ObjectNotSet);
  return *m_objDialog;
}

String frmDialog::Key() const { return CStr(definition().Key()); }

void frmDialog::ShowData() {
  ResumeNext step;
  step([&] { ensureLoaded(); });
  step([&] { rsListe = definition().GetRecordsetForShow(); });
  step([&] { definition().ShowData(rsListe); });
  step([&] { txtKey.Text(concatenate(definition().Key())); });
  step([&] { FindKey(); });
  step([&] { UpdateOK(); });
  step([&] { Show(); });
}

// ---- records

void frmDialog::LoadRecord() {
  ResumeNext step;
  Ref<ado::Recordset> rs;
  step([&] { rs = definition().GetRecordsetForReadWrite(); });
  // A query that failed shows empty fields, never the last record under a new key.
  bool hasRow = false;
  step([&] { hasRow = !rs->IsEOF(); });
  if (hasRow) {
    step([&] { definition().ReadData(*rs); });
  } else {
    step([&] { definition().InitData(); });
  }
  step([&] { rs->Close(); });
}

void frmDialog::FindKey() {
  ResumeNext step;
  step([&] { rsListe->MoveFirst(); });
  step([&] { rsListe->Find(definition().FindCriteria()); });
  step([&] { tdblShow.Bookmark(rsListe->Bookmark()); });
  step([&] { LoadRecord(); });
}

void frmDialog::UpdateOK() { cmdOK.Enabled(!Trim(txtKey.Text()).empty()); }

void frmDialog::UpdateListState() {
  const bool hasRows = rsListe->RecordCount() != 0;
  cmdDelete.Enabled(hasRows);
  tdblShow.Enabled(hasRows);
  if (!hasRows) txtKey.SetFocus();
}

void frmDialog::UpdateZahlungstext() {
  txtKeyText.Text(basGeneral::BuildZahlungstext(
      tdbnSkTage(0).Value(), tdbnPercent(0).Value(), tdbnSkTage(1).Value(), tdbnPercent(1).Value(),
      tdbnSkTage(2).Value(), tdbnPercent(2).Value(), tdbnNettoTage.Value()));
}

// ---- fields

void frmDialog::chk1_Click() {
  const bool ticked = chk1.Value() == 1;
  for (TDBDate* date : {&tdbdValidOf, &tdbdValidTo}) {
    date->Enabled(ticked);
    date->BackColor(ticked ? colour::WindowBackground : colour::ButtonFace);
  }
  ResumeNext step;
  step([&] { definition().DataChanged(chk1); });
}

// ---- list

void frmDialog::paintList(std::uint32_t backColor, std::uint32_t foreColor) {
  tdblShow.HighlightRowStyle({backColor, foreColor});
}

void frmDialog::tdblShow_RowColChange() {
  const String value = tdblShow.Text();
  if (!Trim(value).empty()) {
    cmdDelete.Enabled(true);
    txtKey.Text(value);
    LoadRecord();
  }
  UpdateOK();
}

void frmDialog::pick() {
  ResumeNext step;
  if (!step.test([&] { return !Trim(tdblShow.Text()).empty(); })) return;
  step([&] { cmdDelete.Enabled(true); });
  step([&] { txtKey.Text(tdblShow.Text()); });
  step([&] { LoadRecord(); });
  step([&] { definition().Key(txtKey.Text()); });
  if (Multiselect) {
    step([&] { DblClick.raise(definition().Key()); });
  } else {
    step([&] { UnloadMe(); });
  }
}

// ---- buttons

void frmDialog::cmdOK_Click() {
  ResumeNext step;
  if (Trim(txtKey.Text()).empty()) return;
  if (!basBasis::bAllowChanges) {
    step([&] {
      MsgBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu speichern.",
             msgbox::Information, u"TALVEX Software");
    });
    return;
  }
  {
    const WritingProcedure writing(*this, u"WriteData");
    step([&] { definition().WriteData(); });
  }
  step([&] { definition().Key(txtKey.Text()); });
  step([&] { tdblShow.HoldFields(); });
  step([&] { rsListe->Requery(); });
  step([&] { tdblShow.ReBind(); });
  step([&] { rsListe->MoveFirst(); });
  step([&] { rsListe->Find(definition().FindCriteria()); });
  step([&] { tdblShow.Bookmark(rsListe->Bookmark()); });
  step([&] { tdblShow.SetFocus(); });
  if (step.test([&] { return rsListe->RecordCount() == 1; })) step([&] { UpdateListState(); });
}

void frmDialog::cmdDelete_Click() {
  if (!basBasis::bAllowChanges) {
    MsgBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu löschen.",
           msgbox::Information, u"TALVEX Software");
    return;
  }
  if (MsgBox(u"Datensatz löschen?", msgbox::YesNo | msgbox::Question, u"Abfrage") != MsgBoxResult::Yes)
    return;
  {
    const WritingProcedure writing(*this, u"DeleteData");
    definition().DeleteData();
  }
  ResumeNext step;
  step([&] { tdblShow.HoldFields(); });
  step([&] { rsListe->Requery(); });
  step([&] { tdblShow.ReBind(); });
  if (step.test([&] { return rsListe->RecordCount() == 0; })) {
    step([&] { txtKey.Text(u""); });
    step([&] { definition().InitData(); });
  } else {
    step([&] { rsListe->MoveFirst(); });
    step([&] { tdblShow.Bookmark(rsListe->Bookmark()); });
    step([&] { tdblShow.SetFocus(); });
  }
  step([&] { UpdateListState(); });
}

void frmDialog::cmdNew_Click() {
  ResumeNext step;
  step([&] { definition().InitData(); });
  step([&] { txtKey.SetFocus(); });
  step([&] { txtKey.Text(u""); });
  step([&] { UpdateOK(); });
}

void frmDialog::cmdCancel_Click() {
  ResumeNext step;
  step([&] { UnloadMe(); });
}

// ---- form

void frmDialog::Form_Activate() {
  ResumeNext step;
  step([&] { UpdateListState(); });
  step([&] { paintList(colour::ButtonFace, colour::WindowText); });
  if (step.test([&] { return StrComp(txtKey.Text(), tdblShow.Text()) != 0; })) {
    step([&] { cmdDelete.Enabled(false); });
    step([&] { txtKey.SetFocus(); });
  } else if (step.test([&] { return txtKeyText.Enabled(); })) {
    step([&] { tdblShow.SetFocus(); });
  } else if (step.test([&] { return tdbnSkTage(0).Enabled() && tdbnSkTage(0).Visible(); })) {
    // The number control does not take the focus at start unless another control had it before, and kept it
    // for as long as something waits.
    step([&] { cmdOK.SetFocus(); });
    step([&] { Desktop::current().doEvents(); });
    step([&] { tdbnSkTage(0).SetFocus(); });
  }
}

void frmDialog::Form_KeyDown(int KeyCode, int Shift) {
  ResumeNext step;
  const bool onList = ActiveControl() != nullptr && sameName(ActiveControl()->Name(), u"tdblShow");
  const bool deletes = KeyCode == key::Delete || (KeyCode == 'L' && Shift == shift::Ctrl);
  if (onList && deletes) {
    if (cmdDelete.Visible()) step([&] { cmdDelete_Click(); });
    return;
  }
  if (Shift != shift::None) return;
  switch (KeyCode) {
    case key::F6:
      if (cmdNew.Visible()) step([&] { cmdNew_Click(); });
      break;
    case key::F9:
      if (onList) {
        step([&] { pick(); });
      } else if (cmdOK.Visible()) {
        step([&] { cmdOK_Click(); });
      }
      break;
    case key::F10:
      if (cmdCancel.Visible()) step([&] { cmdCancel_Click(); });
      break;
    case key::Escape:
      // A visible cancel button has taken the key already: this is the window without a catalogue.
      step([&] { UnloadMe(); });
      break;
    default:
      break;
  }
}

void frmDialog::Form_KeyPress(int& KeyAscii) {
  if (KeyAscii != key::Enter) return;
  String keys = u"{Tab}";
  Variant wait;
  objSendKeys->SendKeys(keys, wait);
  KeyAscii = 0;
}

void frmDialog::Form_Unload() {
  ResumeNext step;
  step([&] { objSendKeys = nothing; });
  step([&] { rsListe->Close(); });
  step([&] { rsListe = nothing; });
}

}  // namespace zqn
