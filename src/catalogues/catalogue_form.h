// SPDX-License-Identifier: MIT
//
// The pattern of the catalogue forms: a list of keys at the top, the key field, further fields, and the
// buttons Neu, Löschen, Speichern, Schließen. It is at once a maintenance form and a picker. The pattern
// stands here once; a form states its roster, its table, its list and its fields, and then what it does
// otherwise:
//
//     class frmVertriebsstati final : public CatalogueForm { ... };
//
// There is no edit mode and no dirty flag: the text of the key field is the current record, saving is
// insert-or-update by that key, and moving in the list overwrites the fields without a question.
//
// Error modes. Statement by statement: RefreshList, WriteRecord, SelectActiveText, the LostFocus handlers,
// the form's KeyDown and Unload, Click of btnCancel. All others have no handler, unless a form says so: what
// fails leaves the event procedure and the person sees it.
#pragma once

#include "ado/connection.h"
#include "ado/recordset.h"
#include "ado/sql.h"
#include "contract/object_factory.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/tdb_list.h"
#include "forms/text_box.h"
#include "runtime/convert.h"
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

  /// Fills the form, runs it modally, and returns when it is closed. Unless the form passes over failures an
  /// error while filling reaches the caller.
  void ShowData();

 protected:
  /// What a record is found by: the table, and the column of its key.
  struct Source {
    StringView table, key;
  };

  CatalogueForm(const FormDesign& design, Source source);

  // ---- what a form states

  /// The statement of the list.
  virtual ado::sql::Text listStatement() const = 0;
  /// Empties all fields but the key.
  virtual void ClearFields() = 0;
  /// Shows the current row of `rs`, the key included. An error leaves ReadRecord.
  virtual void readFields(ado::Recordset& rs) = 0;
  /// Writes every column, each as a statement of its own.
  virtual void writeFields(ResumeNext& step, ado::Recordset& rs) = 0;

  // ---- what a form may do otherwise than the pattern

  /// The procedures whose error mode is a matter of the form.
  enum class Procedure { ShowData, btnOK_Click };
  virtual ResumeNext::Mode errorMode(Procedure) const { return ResumeNext::Mode::Raise; }
  /// The statement that finds the row of the present key: to read it, and to write it.
  virtual ado::sql::Text readStatement() const;
  virtual ado::sql::Text writeStatement() const;
  virtual ado::sql::Text deleteStatement() const;
  /// The criterion that finds the present key in the list.
  virtual ado::sql::Text listCriterion() const;
  /// First in ShowData: the caption, entries of a drop-down.
  virtual void beforeList() {}
  /// Last in ShowData, before the window comes up: the record is shown already.
  virtual void beforeShow() {}
  /// After the list was bound anew in RefreshList: captions, hidden columns. One statement there.
  virtual void setUpColumns() {}
  /// The key that a text of the list stands for.
  virtual String keyOf(const String& listText) const { return listText; }
  /// There is a key that can be saved: the buttons and "Speichern" ask for it.
  virtual bool hasKey() const { return !Trim(Schluessel.Text()).empty(); }
  /// Saving and deleting need the right to change catalogues.
  virtual bool asksForRights() const { return true; }
  /// What is entered may be saved. A form that refuses says why.
  virtual bool maySave() { return true; }
  /// What is asked before a record is deleted.
  virtual String deleteQuestion() const { return u"Datensatz löschen?"; }
  /// The record that is shown may be taken over. A form that refuses says why.
  virtual bool mayBeTaken() { return true; }
  /// The list's first row becomes the current one, after saving and before the search.
  virtual void moveToFirst(ado::Recordset& list) { list.MoveFirst(); }
  /// Sends Tab in place of Enter.
  virtual void sendTab(ZQSendKeys& keys);

  // ---- the pattern's routines

  void RefreshList(bool Rebind);
  virtual void ReadRecord();
  virtual void WriteRecord();
  virtual void DeleteRecord();
  void UpdateButtons();
  /// Null when the trimmed text is empty, else the trimmed text. Null counts as empty.
  static Variant NullIfEmpty(const Variant& Value);
  /// Absolute value of a field, for check boxes and numbers; Null is 0.
  static Variant absolute(const Variant& value);
  void Schluessel_LostFocus();

  const Source& source() const noexcept { return source_; }

  TDBList& TDBList1 = Get<TDBList>(u"TDBList1");
  TextBox& Schluessel = Get<TextBox>(u"Schluessel");
  CommandButton& btnOK = Get<CommandButton>(u"btnOK");
  CommandButton& btnCancel = Get<CommandButton>(u"btnCancel");
  CommandButton& btnNew = Get<CommandButton>(u"btnNew");
  CommandButton& btnDelete = Get<CommandButton>(u"btnDelete");

 private:
  ado::sql::Text byKey(StringView front, StringView equals) const;
  bool mayChange(StringView refusal) const;
  void takeFromList(const String& listText);
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

  Source source_;
  /// The list's recordset, alive from ShowData until the form unloads.
  Ref<ado::Recordset> rsListe;
  Ref<ZQSendKeys> objSendKeys;
};

}  // namespace zqn
