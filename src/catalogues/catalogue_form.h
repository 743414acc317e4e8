// SPDX-License-Identifier: MIT
//
// The pattern of the catalogue forms: a list of keys at the top, the key field, further fields, and the
// buttons Neu, Löschen, Speichern, Schließen. It is at once a maintenance form and a picker. The pattern
// stands here once; a form states its roster, its statements and its fields:
//
//     class frmVertriebsstati final : public CatalogueForm { ... };
//
// There is no edit mode and no dirty flag: the text of the key field is the current record, saving is
// insert-or-update by that key, and moving in the list overwrites the fields without a question.
//
// Error modes. Statement by statement: RefreshList, WriteRecord, SelectActiveText, the LostFocus handlers,
// the form's KeyDown and Unload, Click of btnCancel. All others have no handler: what fails leaves the event
// procedure and the person sees it.
#pragma once

#include "ado/connection.h"
#include "ado/recordset.h"
#include "ado/sql.h"
#include "contract/object_factory.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/tdb_list.h"
#include "forms/text_box.h"
#include "runtime/resume_next.h"

namespace zqn {

class CatalogueForm : public Form {
 public:
  /// In: the key to open. Out: the key taken by double click or F9 on the list; what came in when nothing was
  /// taken.
  Variant SelectedKey;
  /// The host's open connection; the form neither opens nor closes it.
  Ref<ado::Connection> Connection;
  /// True: taking a key raises DblClick and the form stays open.
  bool Multiselect = false;

  /// A key was taken while Multiselect is True.
  Event<const Variant&> DblClick{*this, u"DblClick"};

  /// Fills the form, runs it modally, and returns when it is closed. Has no handler: an error while filling
  /// reaches the caller.
  void ShowData();

 protected:
  explicit CatalogueForm(const FormDesign& design);

  // ---- what a form states

  /// The statement of the list.
  virtual ado::sql::Text listStatement() const = 0;
  /// The statement that finds the row of the present key: to read it, and to write it.
  virtual ado::sql::Text readStatement() const = 0;
  virtual ado::sql::Text writeStatement() const = 0;
  virtual ado::sql::Text deleteStatement() const = 0;
  /// The criterion that finds the present key in the list.
  virtual ado::sql::Text listCriterion() const = 0;
  /// Empties all fields but the key.
  virtual void ClearFields() = 0;
  /// Shows the current row of `rs`, the key included. An error leaves ReadRecord.
  virtual void readFields(ado::Recordset& rs) = 0;
  /// Writes every column, each as a statement of its own.
  virtual void writeFields(ResumeNext& step, ado::Recordset& rs) = 0;

  // ---- the pattern's routines

  void RefreshList(bool Rebind);
  void ReadRecord();
  void WriteRecord();
  void DeleteRecord();
  void UpdateButtons();
  /// Selects the whole text of the active control, so that typing replaces it.
  void SelectActiveText();
  /// Null when the trimmed text is empty, else the trimmed text. Null counts as empty.
  static Variant NullIfEmpty(const Variant& Value);
  void Schluessel_LostFocus();

  TDBList& TDBList1 = Get<TDBList>(u"TDBList1");
  TextBox& Schluessel = Get<TextBox>(u"Schluessel");
  CommandButton& btnOK = Get<CommandButton>(u"btnOK");
  CommandButton& btnCancel = Get<CommandButton>(u"btnCancel");
  CommandButton& btnNew = Get<CommandButton>(u"btnNew");
  CommandButton& btnDelete = Get<CommandButton>(u"btnDelete");

 private:
  void btnNew_Click();
  void btnOK_Click();
  void btnDelete_Click();
  void btnCancel_Click();
  void TDBList1_DblClick();
  void TDBList1_RowColChange();
  void Form_Load();
  void Form_KeyDown(int KeyCode, int Shift);
  void Form_KeyPress(int& KeyAscii);
  void Form_Unload();

  /// The list's recordset, alive from ShowData until the form unloads.
  Ref<ado::Recordset> rsListe;
  Ref<ZQSendKeys> objSendKeys;
};

}  // namespace zqn
