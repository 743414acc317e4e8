// SPDX-License-Identifier: MIT
//
// The information dialog for a person: finds customers or offers as one types, by the front of their number
// or by any part of their name, and takes the marked one over by Enter, a double click or the button.
//
//     frmAuskunft form(*auskunftSubject(u"AUSK_Kundenauskunft"), connection);
//     form.Show();
//     if (form.taken()) use(form.value());
#pragma once

#include <vector>

#include "ado/connection.h"
#include "ado/recordset.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/tdb_list.h"
#include "forms/text_box.h"

namespace zqn::host {

/// What can be looked for.
struct AuskunftSubject {
  /// The table with its columns as the list shows them, in the form "SELECT ... FROM ...".
  StringView select;
  /// The column of the number, and those that are searched for a part of the name.
  StringView number;
  std::vector<StringView> names;
  /// Of the columns, in twips; the last one reaches to the edge of the list.
  std::vector<int> widths;
  /// The name under which the number is given back.
  StringView item;
};

/// The subject of "AUSK_Kundenauskunft" and of "AUSK_Angebotsauskunft"; nullptr for another name.
const AuskunftSubject* auskunftSubject(StringView name) noexcept;

class frmAuskunft final : public Form {
 public:
  frmAuskunft(const AuskunftSubject& subject, Ref<ado::Connection> connection);

  /// What the button says that takes a row over.
  void take(StringView caption) { btnTake.Caption(caption); }
  bool taken() const noexcept { return !value_.isEmpty(); }
  /// The number that was taken over, Empty when none was.
  const Variant& value() const noexcept { return value_; }

 private:
  void search();
  void show();
  void takeMarked();
  ado::sql::Text statement() const;

  TextBox& txtSuche = Get<TextBox>(u"txtSuche");
  TDBList& TDBList1 = Get<TDBList>(u"TDBList1");
  Label& lblTreffer = Get<Label>(u"lblTreffer");
  CommandButton& btnTake = Get<CommandButton>(u"btnTake");
  CommandButton& btnCancel = Get<CommandButton>(u"btnCancel");

  const AuskunftSubject& subject_;
  Ref<ado::Connection> connection_;
  Ref<ado::Recordset> found_;
  Variant value_;
};

}  // namespace zqn::host
