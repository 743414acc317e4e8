// SPDX-License-Identifier: MIT
//
// frmSaveOfferTemplate, kind 30: gives an offer a name under which it is a template. The one dialog that
// tells a failed save in the database's own words.
#pragma once

#include "ado/connection.h"
#include "ado/sql.h"
#include "contract/session.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/text_box.h"

namespace zqn {

class frmSaveOfferTemplate final : public Form {
 public:
  frmSaveOfferTemplate();

  /// The number of the offer; stays as it is.
  Variant SelectedKey;
  Ref<ado::Connection> Connection;
  /// Not read.
  Ref<zqn::Session> Session;

  /// Fills the form, runs it modally, and returns when it is closed; without a number of an offer a message
  /// says so and no form comes up. Raises nothing.
  void ShowData();

 private:
  ado::sql::Text statement() const;
  void readName();
  void btnOK_Click();

  TextBox& VorlagenName = Get<TextBox>(u"VorlagenName");
  CommandButton& btnOK = Get<CommandButton>(u"btnOK");
  CommandButton& btnCancel = Get<CommandButton>(u"btnCancel");
};

}  // namespace zqn
