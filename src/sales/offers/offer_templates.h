// SPDX-License-Identifier: MIT
//
// frmOfferTemplates, kind 29: opens a new offer from nothing, from a template, or as a copy of an offer, and
// takes offers off the list of templates. A template is an offer whose column Vorlage is not empty.
//
// Esc presses "Aus Vorlagen entfernen" while that is enabled; a question follows.
#pragma once

#include <vector>

#include "ado/connection.h"
#include "contract/session.h"
#include "forms/command_button.h"
#include "forms/flex_grid.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/option_button.h"
#include "forms/picture_box.h"
#include "forms/text_box.h"

namespace zqn {

class frmOfferTemplates final : public Form {
 public:
  frmOfferTemplates();

  /// Out: Null when the form was cancelled, -1 for a new offer, else the number of the offer to take. What
  /// comes in does not matter.
  Variant SelectedKey;
  Ref<ado::Connection> Connection;
  /// Handed to the offer information; may be Nothing.
  Ref<zqn::Session> Session;

  /// Fills the form, runs it modally, and returns when it is closed.
  void ShowData();

 private:
  enum Choice { NewOffer, FromTemplate, CopyOffer };

  void LoadTemplates();
  void ShowPopup();
  /// The number that a person takes over from the offer information, "" for none. Has no handler.
  String AskOffer();
  bool OfferExists(std::int32_t number);
  void updateDelete();
  /// The offer in the current row of the list, 0 for none.
  std::int32_t templateNumber() const;
  /// Makes a number of what was typed, "" of 0.
  double settleNumber();
  void say(StringView text, StringView title);

  void optAuswahl_Click(int Index);
  void MSFlexGrid1_DblClick();
  void MSFlexGrid1_MouseUp(int Button);
  void Angebotsnummer_GotFocus();
  void btnAngebotsAuskunft_Click();
  void mnuDelete_Click();
  /// The offer is a template no longer.
  void takeFromTemplates(std::int32_t number);
  void btnOK_Click();

  OptionButton& optAuswahl(int index) const { return Get<OptionButton>(u"optAuswahl", index); }
  MSFlexGrid& MSFlexGrid1 = Get<MSFlexGrid>(u"MSFlexGrid1");
  TextBox& Angebotsnummer = Get<TextBox>(u"Angebotsnummer");
  CommandButton& btnAngebotsAuskunft = Get<CommandButton>(u"btnAngebotsAuskunft");
  CommandButton& btnDelete = Get<CommandButton>(u"btnDelete");
  CommandButton& btnOK = Get<CommandButton>(u"btnOK");
  CommandButton& btnCancel = Get<CommandButton>(u"btnCancel");
  Menu& mnuPopup = Get<Menu>(u"mnuPopup");
  Menu& mnuDelete = Get<Menu>(u"mnuDelete");

  /// The offer of each row of the list.
  std::vector<std::int32_t> aNummern;
};

}  // namespace zqn
