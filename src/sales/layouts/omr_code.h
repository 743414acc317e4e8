// SPDX-License-Identifier: MIT
//
// frmOMRCode, kind 31: which layout file each of eight document kinds is printed with, and on which pages its
// additional options apply. Several kinds can be selected and edited together. All changes stay in the form
// until they are taken over; everything is kept in settings of the user, section "Belegdruck".
//
// Every routine runs statement by statement: nothing that fails is reported.
#pragma once

#include <array>
#include <vector>

#include "ado/connection.h"
#include "contract/session.h"
#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/list_box.h"
#include "forms/timer.h"
#include "sales/layouts/layout_folder.h"

namespace zqn {

class frmOMRCode final : public Form {
 public:
  frmOMRCode();

  /// In: the code of the document kind to select ("RG"), anything else for none. Out: True when something was
  /// saved, else False.
  Variant SelectedKey;
  /// Set by the caller, not read.
  Ref<ado::Connection> Connection;
  /// Where the settings are.
  Ref<zqn::Session> Session;

  /// Fills the form, runs it modally, and returns when it is closed. Raises nothing.
  void ShowData();

  static constexpr int documentKinds = 8;
  static constexpr int options = 5;

 private:
  /// What is set for one kind of document.
  struct Assignment {
    /// Name of the layout; "NONE" and "DEFAULT" stand for none and for the default layout.
    String layout;
    std::array<bool, options> on{};
    /// Page codes.
    std::array<String, options> page;
  };
  struct Layout {
    String file, description;
  };
  struct Page {
    String code, caption;
  };

  void LoadLayouts();
  void readAssignment(int kind);
  void ShowSelection();
  void ShowOptions();
  /// The pages that a definition ("1,2,EOC") offers for an option go into its combo.
  void LoadPages(int option, StringView definition);
  /// The state of an option over all selected kinds.
  void showOption(int option);
  void TakeSelection();
  void SaveAll();
  std::vector<int> selectedKinds() const;

  void lstBelegarten_Click();
  void cboLayout_Click();
  void cboOption_Click(int Index);
  void chkOption_Click(int Index);
  void btnSelectAll_Click();
  void btnOK_Click();
  void Timer1_Timer();

  ListBox& lstBelegarten = Get<ListBox>(u"lstBelegarten");
  ComboBox& cboLayout = Get<ComboBox>(u"cboLayout");
  CheckBox& chkOption(int index) const { return Get<CheckBox>(u"chkOption", index); }
  ComboBox& cboOption(int index) const { return Get<ComboBox>(u"cboOption", index); }
  CommandButton& btnOK = Get<CommandButton>(u"btnOK");
  CommandButton& btnCancel = Get<CommandButton>(u"btnCancel");
  CommandButton& btnSave = Get<CommandButton>(u"btnSave");
  CommandButton& btnSelectAll = Get<CommandButton>(u"btnSelectAll");
  Timer& Timer1 = Get<Timer>(u"Timer1");

  LayoutFolder folder_;
  std::array<Assignment, documentKinds> assignments_;
  /// In the rows of cboLayout.
  std::vector<Layout> layouts_;
  std::array<std::vector<Page>, options> pages_;
  /// The form itself sets controls: their events do nothing.
  bool bLoading = false;
  /// btnSelectAll sets rows: the list's click does nothing.
  bool bSelectingAll = false;
  int lLastLayout = -1;
};

}  // namespace zqn
