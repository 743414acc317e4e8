// SPDX-License-Identifier: MIT
#include "catalogues/catalogue_form.h"

#include "forms/message_box.h"
#include "forms/writing_procedure.h"
#include "frontend/basics/bas_basis.h"

namespace zqn {

CatalogueForm::CatalogueForm(const FormDesign& design, Source source) : Form(design), source_(source) {
  Load = [this] { Form_Load(); };
  KeyDown = [this](int& KeyCode, int Shift) { Form_KeyDown(KeyCode, Shift); };
  KeyPress = [this](int& KeyAscii) { Form_KeyPress(KeyAscii); };
  Unload = [this](int&) { Form_Unload(); };
  TDBList1.DblClick = [this] { TDBList1_DblClick(); };
  TDBList1.KeyPress = [this](int& KeyAscii) {
    if (KeyAscii == key::Enter) TDBList1_DblClick();
  };
  TDBList1.RowColChange = [this] { TDBList1_RowColChange(); };
  Schluessel.GotFocus = [this] { SelectActiveText(); };
  Schluessel.LostFocus = [this] { Schluessel_LostFocus(); };
  btnOK.Click = [this] { btnOK_Click(); };
  btnCancel.Click = [this] { btnCancel_Click(); };
  btnNew.Click = [this] { btnNew_Click(); };
  btnDelete.Click = [this] { btnDelete_Click(); };
}

void CatalogueForm::ShowData() {
  ResumeNext step(errorMode(Procedure::ShowData));
  step([&] { ensureLoaded(); });
  step([&] { beforeList(); });
  step([&] { rsListe = Ref<ado::Recordset>::make(); });
  step([&] { rsListe->CursorLocation(ado::adUseServer); });
  step([&] { RefreshList(false); });
  step([&] { Schluessel.Text(concatenate(SelectedKey)); });
  step([&] { Schluessel_LostFocus(); });
  step([&] { UpdateButtons(); });
  step([&] { beforeShow(); });
  step([&] { Show(); });
}

// ---- statements

/// "front table WHERE key equals 'present key'"
ado::sql::Text CatalogueForm::byKey(StringView front, StringView equals) const {
  String text(front);
  text.append(source_.table).append(u" WHERE ").append(source_.key).append(equals);
  return std::move(text) + ado::sql::value(Schluessel.Text());
}

ado::sql::Text CatalogueForm::readStatement() const { return byKey(u"SELECT * FROM ", u" ="); }

ado::sql::Text CatalogueForm::writeStatement() const { return byKey(u"SELECT * FROM ", u"="); }

ado::sql::Text CatalogueForm::deleteStatement() const { return byKey(u"Delete FROM ", u" ="); }

ado::sql::Text CatalogueForm::listCriterion() const {
  return String(source_.key) + u"=" + ado::sql::value(Schluessel.Text());
}

// ---- records

void CatalogueForm::RefreshList(bool Rebind) {
  ResumeNext step;
  if (Rebind) step([&] { TDBList1.HoldFields(); });
  step([&] { rsListe->Close(); });
  step([&] { rsListe->Open(listStatement(), Connection, ado::adOpenKeyset, ado::adLockReadOnly); });
  step([&] { TDBList1.DataSource(rsListe); });
  step([&] { setUpColumns(); });
  if (Rebind) step([&] { TDBList1.ReBind(); });
}

void CatalogueForm::ReadRecord() {
  ado::Recordset rs;
  rs.Open(readStatement(), Connection, ado::adOpenKeyset, ado::adLockOptimistic);
  if (rs.IsEOF()) {
    ClearFields();
  } else {
    readFields(rs);
  }
  rs.Close();
}

void CatalogueForm::WriteRecord() {
  ResumeNext step;
  ado::Recordset rs;
  step([&] { rs.Open(writeStatement(), Connection, ado::adOpenKeyset, ado::adLockOptimistic); });
  if (step.test([&] { return rs.IsEOF(); })) step([&] { rs.AddNew(); });
  writeFields(step, rs);
  step([&] { rs.Update(); });
  step([&] { rs.Close(); });
}

void CatalogueForm::DeleteRecord() { Connection->Execute(deleteStatement()); }

Variant CatalogueForm::NullIfEmpty(const Variant& Value) {
  String trimmed = Trim(concatenate(Value));
  return trimmed.empty() ? Variant(Null) : Variant(std::move(trimmed));
}

Variant CatalogueForm::absolute(const Variant& value) {
  return value.isNull() ? Variant(std::int32_t{0}) : Abs(value);
}

// ---- fields and buttons

void CatalogueForm::UpdateButtons() {
  btnOK.Enabled(hasKey());
  btnDelete.Enabled(hasKey());
}

void CatalogueForm::Schluessel_LostFocus() {
  ResumeNext step;
  // The search runs from the list's current row downward: a key above it is not reached, the fields follow
  // the key all the same.
  step([&] { rsListe->Find(listCriterion()); });
  step([&] { TDBList1.Bookmark(rsListe->Bookmark()); });
  step([&] { ReadRecord(); });
  step([&] { UpdateButtons(); });
}

// ---- buttons

void CatalogueForm::btnNew_Click() {
  ClearFields();
  Schluessel.Text(u"");
  Schluessel.SetFocus();
  UpdateButtons();
}

bool CatalogueForm::mayChange(StringView refusal) const {
  if (!asksForRights() || basBasis::bAllowChanges) return true;
  MsgBox(refusal, msgbox::Information, u"TALVEX Software");
  return false;
}

void CatalogueForm::btnOK_Click() {
  if (!hasKey()) return;
  if (!mayChange(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu speichern.")) return;
  if (!maySave()) return;
  ResumeNext step(errorMode(Procedure::btnOK_Click));
  {
    const WritingProcedure writing(*this, u"WriteRecord");
    step([&] { WriteRecord(); });
  }
  step([&] { TDBList1.HoldFields(); });
  step([&] { rsListe->Requery(); });
  step([&] { TDBList1.ReBind(); });
  step([&] { moveToFirst(*rsListe); });
  step([&] { rsListe->Find(listCriterion()); });
  step([&] { TDBList1.Bookmark(rsListe->Bookmark()); });
  step([&] { TDBList1.SetFocus(); });
}

void CatalogueForm::btnDelete_Click() {
  if (!mayChange(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu löschen.")) return;
  if (MsgBox(deleteQuestion(), msgbox::YesNo | msgbox::Question, u"Abfrage") != MsgBoxResult::Yes) return;
  {
    const WritingProcedure writing(*this, u"DeleteRecord");
    DeleteRecord();
  }
  RefreshList(true);
  if (rsListe->RecordCount() != 0) {
    rsListe->MoveFirst();
    TDBList1.Bookmark(rsListe->Bookmark());
    TDBList1.SetFocus();
  } else {
    Schluessel.Text(u"");
    ClearFields();
    Schluessel.SetFocus();
  }
}

void CatalogueForm::btnCancel_Click() {
  ResumeNext step;
  step([&] { UnloadMe(); });
}

// ---- list

void CatalogueForm::takeFromList(const String& listText) {
  Schluessel.Text(keyOf(listText));
  ReadRecord();
}

void CatalogueForm::TDBList1_DblClick() {
  const String value = TDBList1.Text();
  if (Trim(value).empty()) return;
  takeFromList(value);
  if (!mayBeTaken()) return;
  SelectedKey = Schluessel.Text();
  if (Multiselect) {
    DblClick.raise(SelectedKey);
  } else {
    UnloadMe();
  }
}

void CatalogueForm::TDBList1_RowColChange() {
  const String value = TDBList1.Text();
  if (!Trim(value).empty()) takeFromList(value);
  UpdateButtons();
}

// ---- form

void CatalogueForm::Form_Load() {
  objSendKeys = ObjectFactory::current().create<ZQSendKeys>(u"ZQBSendKeys.ZQSendKeys");
}

void CatalogueForm::Form_KeyDown(int KeyCode, int Shift) {
  if (Shift != shift::None) return;
  ResumeNext step;
  switch (KeyCode) {
    case key::F6:
      step([&] { btnNew_Click(); });
      break;
    case key::F9:
      if (step.test([&] { return UCase(requireActiveControl().Name()) == u"TDBLIST1"; })) {
        step([&] { TDBList1_DblClick(); });
      } else {
        step([&] { btnOK_Click(); });
      }
      break;
    case key::F10:
      step([&] { btnCancel_Click(); });
      break;
    default:
      break;
  }
}

void CatalogueForm::Form_KeyPress(int& KeyAscii) {
  if (KeyAscii != key::Enter) return;
  sendTab(*objSendKeys);
  KeyAscii = 0;
}

void CatalogueForm::sendTab(ZQSendKeys& keys) {
  String tab = u"{Tab}";
  Variant wait;
  keys.SendKeys(tab, wait);
}

void CatalogueForm::Form_Unload() {
  ResumeNext step;
  step([&] { objSendKeys = nothing; });
  step([&] { rsListe->Close(); });
  step([&] { rsListe = nothing; });
}

}  // namespace zqn
