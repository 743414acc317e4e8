// SPDX-License-Identifier: MIT
//
// frmDialog, the one form behind all catalogues that have none of their own. Its roster is the superset of
// all fields that any of them needs, many on top of each other, all invisible: Init takes a definition class,
// hands it the controls, and lets it show what its table needs. From then on the form owns the flow and asks
// the class for everything that depends on the table.
//
// There is no record state and no dirty flag: the text of txtKey is the current record.
//
// Error modes. Whatever asks the definition class runs statement by statement, but for three: Init, Key, and
// cmdDelete up to DeleteData let an error out. So do the routines that ask it for nothing: UpdateOK,
// UpdateListState, UpdateZahlungstext, tdblShow_RowColChange and Form_KeyPress.
#pragma once

#include <memory>

#include "contract/object_factory.h"
#include "dialog/cls_basis_dialog.h"

namespace zqn {

class frmDialog final : public Form {
 public:
  /// Makes the definition object of a kind; nullptr for a kind that has none.
  using DefinitionMaker = std::unique_ptr<clsBasisDialog> (*)(std::int32_t Kind);

  /// `maker` serves Init by kind; without one no kind has a definition class.
  explicit frmDialog(DefinitionMaker maker = nullptr);

  /// True: taking a key raises DblClick and the form stays open.
  bool Multiselect = false;

  /// A key was taken while Multiselect is True.
  Event<const Variant&> DblClick{*this, u"DblClick"};

  /// Chooses the definition class of the kind and lets it set up the form. Error 91 for a kind that has none,
  /// and whatever the class lets out.
  void Init(const Ref<ado::Connection>& Connection, const Variant& Key, std::int32_t Kind);
  /// The same with a definition class of the caller's.
  void Init(const Ref<ado::Connection>& Connection, const Variant& Key,
            std::unique_ptr<clsBasisDialog> Definition);
  /// The key of the definition object as text. Error 91 without one, 94 when it is Null.
  String Key() const;
  /// Fills the form and shows it modally. Never raises: the form always comes up.
  void ShowData();
  /// The dates can be entered while the check box is on; the definition class hears of it. Errors of the
  /// class stay here.
  void chk1_Click();

 private:
  void LoadRecord();
  void FindKey();
  void UpdateOK();
  void UpdateListState();
  void UpdateZahlungstext();

  void wireFields();
  void handOver(BasisControls& controls);
  clsBasisDialog& definition() const;
  void pick();
  void paintList(std::uint32_t backColor, std::uint32_t foreColor);

  void cmdOK_Click();
  void cmdDelete_Click();
  void cmdNew_Click();
  void cmdCancel_Click();
  void tdblShow_RowColChange();
  void Form_Activate();
  void Form_KeyDown(int KeyCode, int Shift);
  void Form_KeyPress(int& KeyAscii);
  void Form_Unload();

  TDBList& tdblShow = Get<TDBList>(u"tdblShow");
  TextBox& txtKey = Get<TextBox>(u"txtKey");
  TextBox& txtKeyText = Get<TextBox>(u"txtKeyText");
  CommandButton& cmdOK = Get<CommandButton>(u"cmdOK");
  CommandButton& cmdCancel = Get<CommandButton>(u"cmdCancel");
  CommandButton& cmdNew = Get<CommandButton>(u"cmdNew");
  CommandButton& cmdDelete = Get<CommandButton>(u"cmdDelete");
  CheckBox& chk1 = Get<CheckBox>(u"chk1");
  TDBDate& tdbdValidOf = Get<TDBDate>(u"tdbdValidOf");
  TDBDate& tdbdValidTo = Get<TDBDate>(u"tdbdValidTo");
  TDBNumber& tdbnNettoTage = Get<TDBNumber>(u"tdbnNettoTage");
  TDBNumber& tdbnSkTage(int index) const { return Get<TDBNumber>(u"tdbnSkTage", index); }
  TDBNumber& tdbnPercent(int index) const { return Get<TDBNumber>(u"tdbnPercent", index); }

  DefinitionMaker maker_;
  std::unique_ptr<clsBasisDialog> m_objDialog;
  /// The list's recordset, alive from ShowData until the form unloads.
  Ref<ado::Recordset> rsListe;
  Ref<ZQSendKeys> objSendKeys;
};

}  // namespace zqn
