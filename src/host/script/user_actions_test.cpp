// SPDX-License-Identifier: MIT
#include "forms/desktop.h"
#include "forms/keys.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

class UserAction : public ScriptTest {};

// ---- click and focus

TEST_F(UserAction, ClickMovesTheFocusByMouseAndRaisesClick) {
  std::vector<std::string> events;
  form.TDBList1.Validate = [&](bool&) { events.push_back("list Validate"); };
  form.TDBList1.LostFocus = [&] { events.push_back("list LostFocus"); };
  form.btnOK.GotFocus = [&] { events.push_back("button GotFocus"); };
  form.btnOK.Click = [&] { events.push_back("button Click"); };
  EXPECT_THAT(acts(R"({"click":"btnOK"}
                      {"get":["Form.ActiveControl"]})"),
              ElementsAre(R"({"values":{"Form.ActiveControl":"btnOK"}})"));
  EXPECT_THAT(events, ElementsAre("list Validate", "list LostFocus", "button GotFocus", "button Click"));
}

TEST_F(UserAction, ClickOnALabelLeavesTheFocus) {
  int clicks = 0;
  form.lblSecond.Click = [&] { ++clicks; };
  EXPECT_THAT(acts(R"~({"click":"Label1(1)"}
                      {"get":["Form.ActiveControl"]})~"),
              ElementsAre(R"({"values":{"Form.ActiveControl":"TDBList1"}})"));
  EXPECT_EQ(clicks, 1);
}

TEST_F(UserAction, ClickSwitchesACheckBoxAndNeverToGrey) {
  form.chkFlag.Value(2);
  EXPECT_THAT(acts(R"({"click":"chkFlag"}
                      {"get":["chkFlag.Value"]}
                      {"click":"chkFlag"}
                      {"get":["chkFlag.Value"]})"),
              ElementsAre(R"({"values":{"chkFlag.Value":0}})", R"({"values":{"chkFlag.Value":1}})"));
}

TEST_F(UserAction, ClickThatClosesTheFormEndsIt) {
  EXPECT_THAT(run(R"({"click":"btnCancel"})"),
              ElementsAre(R"({"shown":"frmSample","caption":"Bühne"})", R"({"closed":"frmSample"})"));
  EXPECT_FALSE(failed);
}

TEST_F(UserAction, FocusClicksIntoAnEntryControl) {
  EXPECT_THAT(acts(R"({"focus":"txtName"}
                      {"get":["Form.ActiveControl"]}
                      {"focus":"TDBList1"}
                      {"get":["Form.ActiveControl"]})"),
              ElementsAre(R"({"values":{"Form.ActiveControl":"txtName"}})",
                          R"({"values":{"Form.ActiveControl":"TDBList1"}})"));
}

TEST_F(UserAction, FocusOnWhatIsNoEntryIsRefused) {
  EXPECT_THAT(
      acts(R"({"focus":"chkFlag"}
              {"focus":"btnOK"}
              {"focus":"lblKey"}
              {"get":["chkFlag.Value","Form.ActiveControl"]})"),
      ElementsAre(
          R"({"refused":"chkFlag is a CheckBox, which is no entry control","action":{"focus":"chkFlag"}})",
          R"({"refused":"btnOK is a CommandButton, which is no entry control","action":{"focus":"btnOK"}})",
          R"({"refused":"lblKey is a Label, which is no entry control","action":{"focus":"lblKey"}})",
          R"({"values":{"chkFlag.Value":0,"Form.ActiveControl":"TDBList1"}})"));
}

TEST_F(UserAction, FocusKeepsWhatGotFocusSelected) {
  form.txtName.Text(u"Angebot");
  form.txtName.GotFocus = [&] {
    form.txtName.SelStart(0);
    form.txtName.SelLength(100);
  };
  EXPECT_THAT(acts(R"({"focus":"txtName"}
                      {"get":["txtName.SelStart","txtName.SelLength"]}
                      {"type":"x"}
                      {"get":["txtName.Text"]})"),
              ElementsAre(R"({"values":{"txtName.SelStart":0,"txtName.SelLength":7}})",
                          R"({"values":{"txtName.Text":"x"}})"));
}

TEST_F(UserAction, WhatIsInvisibleOrDisabledIsRefusedAndChangesNothing) {
  form.chkFlag.Enabled(false);
  EXPECT_THAT(acts(R"({"click":"btnHidden"}
                      {"click":"btnOff"}
                      {"click":"chkFlag"}
                      {"get":["Form.ActiveControl","chkFlag.Value"]})"),
              ElementsAre(R"({"refused":"btnHidden is invisible","action":{"click":"btnHidden"}})",
                          R"({"refused":"btnOff is disabled","action":{"click":"btnOff"}})",
                          R"({"refused":"chkFlag is disabled","action":{"click":"chkFlag"}})",
                          R"({"values":{"Form.ActiveControl":"TDBList1","chkFlag.Value":0}})"));
}

TEST_F(UserAction, ValidateThatRefusesKeepsTheFocusAndTheClick) {
  int clicks = 0;
  form.txtName.Validate = [](bool& cancel) { cancel = true; };
  form.btnOK.Click = [&] { ++clicks; };
  EXPECT_THAT(acts(R"({"focus":"txtName"}
                      {"click":"btnOK"}
                      {"get":["Form.ActiveControl"]})"),
              ElementsAre(R"({"values":{"Form.ActiveControl":"txtName"}})"));
  EXPECT_EQ(clicks, 0);
}

// ---- type and key

TEST_F(UserAction, TypeGoesKeyByKeyIntoTheControlWithTheFocus) {
  std::vector<std::string> changes;
  form.txtName.Change = [&] { changes.push_back(toUtf8(form.txtName.Text())); };
  EXPECT_THAT(acts(R"({"focus":"txtName"}
                      {"type":"Ab1"}
                      {"get":["txtName.Text"]})"),
              ElementsAre(R"({"values":{"txtName.Text":"Ab1"}})"));
  EXPECT_THAT(changes, ElementsAre("A", "Ab", "Ab1"));
}

TEST_F(UserAction, TypeKnowsEveryCharacter) {
  EXPECT_THAT(acts(R"({"focus":"txtName"}
                      {"type":"äÖß€ÿ '\"\\|ſ中😀"}
                      {"get":["txtName.Text","txtName.SelStart"]})"),
              ElementsAre(R"({"values":{"txtName.Text":"äÖß€ÿ '\"\\|ſ中😀","txtName.SelStart":14}})"));
}

TEST_F(UserAction, TypeStopsAtMaxLength) {
  EXPECT_THAT(acts(R"({"focus":"txtKey"}
                      {"type":"1234"}
                      {"get":["txtKey.Text"]})"),
              ElementsAre(R"({"values":{"txtKey.Text":"123"}})"));
}

TEST_F(UserAction, TypeWithATabGoesOnInTheNextField) {
  EXPECT_THAT(acts(R"({"focus":"txtKey"}
                      {"type":"99\tName"}
                      {"get":["txtKey.Text","txtName.Text"]})"),
              ElementsAre(R"({"values":{"txtKey.Text":"99","txtName.Text":"Name"}})"));
}

TEST_F(UserAction, KeysQueuedByAHandlerRunBeforeTheNextKeyTyped) {
  form.KeyPress = [&](int& character) {
    if (character != key::Enter) return;
    character = 0;
    scriptDesktop->desktop().sendKeys(u"{Tab}");
  };
  EXPECT_THAT(
      acts(R"({"focus":"txtKey"}
                      {"type":"7\nacht"}
                      {"get":["txtKey.Text","txtName.Text","Form.ActiveControl"]})"),
      ElementsAre(R"({"values":{"txtKey.Text":"7","txtName.Text":"acht","Form.ActiveControl":"txtName"}})"));
}

TEST_F(UserAction, TypeWithoutFocusReachesTheForm) {
  std::string heard;
  for (const auto& control : form.controls()) {
    if (control->takesFocus()) control->Enabled(false);
  }
  form.KeyPress = [&](int& character) { heard += static_cast<char>(character); };
  EXPECT_THAT(acts(R"({"type":"ab"}
                      {"get":["Form.ActiveControl"]})"),
              ElementsAre(R"({"values":{"Form.ActiveControl":null}})"));
  EXPECT_EQ(heard, "ab");
}

TEST_F(UserAction, KeyPressesAndReleasesOneKey) {
  std::vector<std::string> heard;
  form.KeyDown = [&](int& code, int shift) {
    heard.push_back("down " + std::to_string(code) + "/" + std::to_string(shift));
  };
  form.KeyPress = [&](int& character) { heard.push_back("press " + std::to_string(character)); };
  form.KeyUp = [&](int code, int shift) {
    heard.push_back("up " + std::to_string(code) + "/" + std::to_string(shift));
  };
  acts(R"({"focus":"txtName"}
          {"key":"F9"}
          {"key":"Delete","shift":1}
          {"key":"l","shift":2}
          {"key":"F12","shift":4}
          {"key":"Backspace"}
          {"key":"a"}
          {"key":"b","shift":1}
          {"key":"Space"}
          {"key":"F5"})");
  EXPECT_THAT(heard, ElementsAre("down 120/0", "up 120/0", "down 46/1", "up 46/1", "down 76/2", "press 12",
                                 "up 76/2", "down 123/4", "up 123/4", "down 8/0", "press 8", "up 8/0",
                                 "down 65/0", "press 97", "up 65/0", "down 66/1", "press 66", "up 66/1",
                                 "down 32/0", "press 32", "up 32/0", "down 116/0", "up 116/0"));
}

TEST_F(UserAction, KeysMoveAndEditInAField) {
  EXPECT_THAT(acts(R"({"focus":"txtName"}
                      {"type":"abcd"}
                      {"key":"Left"}
                      {"key":"Backspace"}
                      {"key":"Home"}
                      {"key":"Delete"}
                      {"key":"End","shift":1}
                      {"get":["txtName.Text","txtName.SelStart","txtName.SelLength"]})"),
              ElementsAre(R"({"values":{"txtName.Text":"bd","txtName.SelStart":0,"txtName.SelLength":2}})"));
}

TEST_F(UserAction, TabGoesForwardAndBackward) {
  EXPECT_THAT(acts(R"({"key":"Tab"}
                      {"get":["Form.ActiveControl"]}
                      {"key":"Tab"}
                      {"key":"Tab","shift":1}
                      {"get":["Form.ActiveControl"]})"),
              ElementsAre(R"({"values":{"Form.ActiveControl":"txtKey"}})",
                          R"({"values":{"Form.ActiveControl":"txtKey"}})"));
}

TEST_F(UserAction, EscapePressesTheCancelButton) {
  EXPECT_THAT(run(R"({"key":"Escape"}
                     {"type":"x"})"),
              ElementsAre(R"({"shown":"frmSample","caption":"Bühne"})", R"({"closed":"frmSample"})",
                          R"({"refused":"no form is open","action":{"type":"x"}})"));
}

TEST_F(UserAction, AFormThatAKeyOpensGetsThatKeysRelease) {
  frmSample second;
  std::vector<std::string> released;
  form.KeyUp = [&](int code, int) { released.push_back("first " + std::to_string(code)); };
  second.KeyUp = [&](int code, int) { released.push_back("second " + std::to_string(code)); };
  form.KeyDown = [&](int& code, int) {
    if (code == key::F6) second.Show();
  };
  acts(R"({"key":"F6"}
          {"close":true}
          {"key":"F9"})");
  EXPECT_THAT(released, ElementsAre("second 117", "first 120"));
}

TEST_F(UserAction, AMessageBoxThatAKeyOpensTakesThatKeysRelease) {
  std::vector<int> released;
  form.KeyUp = [&](int code, int) { released.push_back(code); };
  form.KeyDown = [&](int& code, int) {
    if (code == key::F6) MsgBox(u"?", msgbox::OKOnly, u"");
  };
  acts(R"({"key":"F6"}
          {"answer":"ok"}
          {"key":"F9"})");
  EXPECT_THAT(released, ElementsAre(key::F9));
}

TEST_F(UserAction, TypingGoesOnAfterAMessageBox) {
  form.txtName.Change = [&] {
    if (form.txtName.Text() == u"ab") MsgBox(u"Halt", msgbox::OKOnly, u"Abfrage");
  };
  EXPECT_THAT(
      acts(R"({"focus":"txtName"}
              {"type":"abc"}
              {"get":["txtName.Text"]}
              {"answer":"ok"}
              {"get":["txtName.Text"]})"),
      ElementsAre(
          R"({"msgbox":{"text":"Halt","title":"Abfrage","buttons":"okonly","icon":"none","default":1}})",
          R"({"values":{"txtName.Text":"ab"}})", R"({"values":{"txtName.Text":"abc"}})"));
}

TEST_F(UserAction, TypingEndsWithItsForm) {
  form.txtName.Change = [&] { form.UnloadMe(); };
  EXPECT_THAT(run(R"({"focus":"txtName"}
                     {"type":"abc"})"),
              ElementsAre(R"({"shown":"frmSample","caption":"Bühne"})", R"({"closed":"frmSample"})"));
  EXPECT_EQ(form.txtName.Text(), u"a");
}

// ---- rows of a list

TEST_F(UserAction, SelectMarksARowOfAList) {
  bindList();
  int changes = 0;
  form.TDBList1.RowColChange = [&] { ++changes; };
  EXPECT_THAT(
      acts(R"({"get":["TDBList1.Row","TDBList1.Text"]}
                      {"select":"TDBList1","row":2}
                      {"get":["TDBList1.Row","TDBList1.Text","Form.ActiveControl"]})"),
      ElementsAre(R"({"values":{"TDBList1.Row":0,"TDBList1.Text":"10"}})",
                  R"({"values":{"TDBList1.Row":2,"TDBList1.Text":"30","Form.ActiveControl":"TDBList1"}})"));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(rs->currentRow(), 2);
}

TEST_F(UserAction, SelectOfTheMarkedRowTellsOnlyOnce) {
  bindList();
  int changes = 0;
  form.TDBList1.RowColChange = [&] { ++changes; };
  acts(R"({"select":"TDBList1","row":0}
          {"select":"TDBList1","row":0})");
  EXPECT_EQ(changes, 1);
}

TEST_F(UserAction, ClickOnAListKeepsItsMarkedRow) {
  bindList();
  EXPECT_THAT(acts(R"({"select":"TDBList1","row":1}
                      {"focus":"txtName"}
                      {"click":"TDBList1"}
                      {"get":["TDBList1.Row","Form.ActiveControl"]})"),
              ElementsAre(R"({"values":{"TDBList1.Row":1,"Form.ActiveControl":"TDBList1"}})"));
}

TEST_F(UserAction, ClickOnAnEmptyListGivesItTheFocus) {
  EXPECT_THAT(acts(R"({"focus":"txtName"}
                      {"click":"TDBList1"}
                      {"get":["TDBList1.Row","Form.ActiveControl"]})"),
              ElementsAre(R"({"values":{"TDBList1.Row":-1,"Form.ActiveControl":"TDBList1"}})"));
}

TEST_F(UserAction, RowsThatAreNotThereAreRefused) {
  bindList();
  EXPECT_THAT(acts(R"({"select":"TDBList1","row":3}
                      {"dblclick":"TDBList1","row":-1}
                      {"get":["TDBList1.Row"]})"),
              ElementsAre(R"({"refused":"TDBList1 has no row 3","action":{"select":"TDBList1","row":3}})",
                          R"({"refused":"TDBList1 has no row -1","action":{"dblclick":"TDBList1","row":-1}})",
                          R"({"values":{"TDBList1.Row":0}})"));
}

TEST_F(UserAction, RowsFarDownAListAreScrolledIntoView) {
  connection->Execute(
      u"WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < "
      u"899) "
      u"INSERT INTO Stati SELECT i, 'Stufe ' || i, i FROM n");
  bindList();
  std::string picked;
  form.TDBList1.DblClick = [&] { picked = toUtf8(form.TDBList1.Text()); };
  EXPECT_THAT(acts(R"({"select":"TDBList1","row":700}
                      {"get":["TDBList1.Text"]}
                      {"dblclick":"TDBList1","row":3}
                      {"select":"TDBList1","row":802}
                      {"get":["TDBList1.Text"]})"),
              ElementsAre(R"({"values":{"TDBList1.Text":"797"}})", R"({"values":{"TDBList1.Text":"899"}})"));
  EXPECT_EQ(picked, "102");
}

TEST_F(UserAction, DoubleClickIsAClickAndThenTheDoubleClick) {
  bindList();
  std::vector<std::string> events;
  form.TDBList1.RowColChange = [&] { events.push_back("RowColChange"); };
  form.TDBList1.Click = [&] { events.push_back("Click"); };
  form.TDBList1.DblClick = [&] { events.push_back("DblClick " + toUtf8(form.TDBList1.Text())); };
  acts(R"({"dblclick":"TDBList1","row":1})");
  EXPECT_THAT(events, ElementsAre("RowColChange", "DblClick 20"));
}

TEST_F(UserAction, ADoubleClickEndsWithTheBoxThatItsClickOpened) {
  bindList();
  int doubleClicks = 0;
  form.TDBList1.RowColChange = [&] { MsgBox(u"Neu?", msgbox::YesNo, u"Abfrage"); };
  form.TDBList1.DblClick = [&] { ++doubleClicks; };
  acts(R"({"dblclick":"TDBList1","row":1}
          {"answer":"no"})");
  EXPECT_EQ(doubleClicks, 0);
  EXPECT_EQ(form.TDBList1.Row(), 1);
}

// ---- the window

TEST_F(UserAction, CloseIsTheCloseBox) {
  int mode = -1;
  form.QueryUnload = [&](int&, int unloadMode) { mode = unloadMode; };
  EXPECT_THAT(run(R"({"close":true}
                     {"close":true})"),
              ElementsAre(R"({"shown":"frmSample","caption":"Bühne"})", R"({"closed":"frmSample"})",
                          R"({"refused":"no form is open","action":{"close":true}})"));
  EXPECT_EQ(mode, static_cast<int>(UnloadMode::CloseBox));
}

TEST_F(UserAction, WaitLetsTimePass) {
  const auto before = std::chrono::steady_clock::now();
  EXPECT_THAT(acts(R"({"wait":30}
                      {"get":["txtName.Text"]})"),
              ElementsAre(R"({"values":{"txtName.Text":""}})"));
  EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(30));
}

TEST_F(UserAction, FormsNestAndOnlyTheTopmostCanBeUsed) {
  frmSample second;
  second.Caption(u"Zweite");
  form.btnOK.Click = [&] { second.Show(); };
  EXPECT_THAT(acts(R"({"click":"btnOK"}
                      {"focus":"txtName"}
                      {"type":"x"}
                      {"close":true}
                      {"get":["txtName.Text","Form.Caption"]})"),
              ElementsAre(R"({"shown":"frmSample","caption":"Zweite"})", R"({"closed":"frmSample"})",
                          R"({"values":{"txtName.Text":"","Form.Caption":"Bühne"}})"));
  EXPECT_EQ(second.txtName.Text(), u"x");
}

// ---- what the controls of this form cannot do

TEST_F(UserAction, ActionsForOtherKindsOfControlsAreRefused) {
  EXPECT_THAT(
      acts(R"({"select":"txtKey","row":0}
              {"select":"TDBList1","rows":[0,1]}
              {"select":"txtKey","index":1}
              {"select":"txtKey","text":"a"}
              {"dblclick":"btnOK","row":0}
              {"mouse":"TDBList1","row":0,"col":1,"button":1,"event":"click"}
              {"drag":"TDBList1","from":[1,0],"to":[3,0]}
              {"menu":"mnuDelete"}
              {"answer":"ok"})"),
      ElementsAre(
          R"({"refused":"txtKey is a TextBox and has no rows to click on","action":{"select":"txtKey","row":0}})",
          R"({"refused":"TDBList1 is a TDBList, which takes no several rows","action":{"select":"TDBList1","rows":[0,1]}})",
          R"({"refused":"txtKey is a TextBox, which is no drop-down","action":{"select":"txtKey","index":1}})",
          R"({"refused":"txtKey is a TextBox, which is no drop-down","action":{"select":"txtKey","text":"a"}})",
          R"({"refused":"btnOK is a CommandButton and has no rows to click on","action":{"dblclick":"btnOK","row":0}})",
          R"({"refused":"TDBList1 is a TDBList, which is no grid","action":{"mouse":"TDBList1","row":0,"col":1,"button":1,"event":"click"}})",
          R"({"refused":"TDBList1 is a TDBList, which is no grid","action":{"drag":"TDBList1","from":[1,0],"to":[3,0]}})",
          R"({"refused":"no popup menu is open","action":{"menu":"mnuDelete"}})",
          R"({"refused":"no message box is open","action":{"answer":"ok"}})"));
}

}  // namespace
}  // namespace zqn::script
