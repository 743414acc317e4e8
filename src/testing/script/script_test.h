// SPDX-License-Identifier: MIT
//
// What the tests of scripts share: a form with one control of each kind over a real database, and a scripted
// user in front of it.
//
//     form.btnOK.Click = [&] { MsgBox(u"Gespeichert.", msgbox::OKOnly, u"Abfrage"); };
//     EXPECT_THAT(acts(R"({"click":"btnOK"})"), ElementsAre(...));
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "ado/connection.h"
#include "ado/recordset.h"
#include "forms/check_box.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/tdb_list.h"
#include "forms/text_box.h"
#include "host/script/scripted_user.h"
#include "testing/script/script_desktop.h"

namespace zqn::script {

/// A list, two fields, labels, a check box, and buttons of which one is hidden and one disabled.
class frmSample : public Form {
 public:
  frmSample();

  TDBList& TDBList1 = Get<TDBList>(u"TDBList1");
  TextBox& txtKey = Get<TextBox>(u"txtKey");
  TextBox& txtName = Get<TextBox>(u"txtName");
  Label& lblSecond = Get<Label>(u"Label1", 1);
  CheckBox& chkFlag = Get<CheckBox>(u"chkFlag");
  CommandButton& btnOK = Get<CommandButton>(u"btnOK");
  CommandButton& btnCancel = Get<CommandButton>(u"btnCancel");
};

class ScriptTest : public ::testing::Test {
 protected:
  using Lines = std::vector<std::string>;

  /// A table Stati with the rows 10 "Erstkontakt", 20 "Angebot" and 30 without a name.
  ScriptTest();
  ~ScriptTest() override;

  /// Binds the form's list to all rows of Stati.
  void bindList();
  /// Runs a script from prepare to finish, `show` in between; without one the form is shown.
  Lines run(const std::string& script, const std::function<void()>& show = {});
  /// The same without the lines `shown` and `closed` of the form, which must be the first and the last.
  Lines acts(const std::string& script);
  /// Values of a query on the second connection, "|" between columns.
  Lines stored(StringView query);

  std::unique_ptr<ScriptDesktop> scriptDesktop = makeScriptDesktop();
  frmSample form;
  Ref<ado::Connection> connection;
  Ref<ado::Recordset> rs;
  FaultInjector faults;
  /// The scripted user while `run` runs, and whether it failed.
  ScriptedUser* user = nullptr;
  bool failed = false;
  std::vector<Setting> settings;

 private:
  OutsideAccess outside();

  std::filesystem::path folder_;
  Ref<ado::Connection> second_;
  Desktop::Scope scope_{scriptDesktop->desktop()};
};

/// What runs of a script were about, as GoogleTest shows it.
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

}  // namespace zqn::script
