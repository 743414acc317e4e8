// SPDX-License-Identifier: MIT
#include "forms/message_box.h"

#include "forms/desktop.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

class ScriptedBox : public ScriptTest {
 protected:
  /// The OK button opens a box of this style and remembers the answer.
  void openBy(int style, const char16_t* text = u"Text", const char16_t* title = u"Titel") {
    form.btnOK.Click = [=, this] { answers.push_back(MsgBox(text, style, title)); };
  }
  std::vector<MsgBoxResult> answers;
};

TEST_F(ScriptedBox, IsWrittenWithItsButtonsIconAndDefault) {
  form.btnOK.Click = [] {
    MsgBox(u"Datensatz löschen?", msgbox::YesNo | msgbox::Question, u"Abfrage");
    MsgBox(u"Zeile\r\nzwei", msgbox::OKCancel | msgbox::Exclamation | msgbox::DefaultButton2, u"&Fehlt");
    MsgBox(u"", msgbox::YesNoCancel | msgbox::Critical | msgbox::DefaultButton3, u"");
    MsgBox(u"Gespeichert.", msgbox::Information, u"TALVEX Software");
    MsgBox(u"Ohne", msgbox::OKOnly, u"Titel");
  };
  EXPECT_THAT(
      acts(R"({"click":"btnOK"}
              {"answer":"default"}
              {"answer":"default"}
              {"answer":"default"}
              {"answer":"default"}
              {"answer":"default"})"),
      ElementsAre(
          R"({"msgbox":{"text":"Datensatz löschen?","title":"Abfrage","buttons":"yesno","icon":"question","default":1}})",
          R"({"msgbox":{"text":"Zeile\r\nzwei","title":"&Fehlt","buttons":"okcancel","icon":"exclamation","default":2}})",
          R"({"msgbox":{"text":"","title":"","buttons":"yesnocancel","icon":"critical","default":3}})",
          R"({"msgbox":{"text":"Gespeichert.","title":"TALVEX Software","buttons":"okonly","icon":"information","default":1}})",
          R"({"msgbox":{"text":"Ohne","title":"Titel","buttons":"okonly","icon":"none","default":1}})"));
}

TEST_F(ScriptedBox, GetsTheAnswerOfTheScript) {
  openBy(msgbox::YesNoCancel | msgbox::DefaultButton2);
  acts(R"({"click":"btnOK"}
          {"answer":"yes"}
          {"click":"btnOK"}
          {"answer":"no"}
          {"click":"btnOK"}
          {"answer":"cancel"}
          {"click":"btnOK"}
          {"answer":"default"})");
  EXPECT_THAT(answers,
              ElementsAre(MsgBoxResult::Yes, MsgBoxResult::No, MsgBoxResult::Cancel, MsgBoxResult::No));
}

TEST_F(ScriptedBox, RefusesWhatStandsBehindIt) {
  openBy(msgbox::OKCancel);
  EXPECT_THAT(
      acts(R"({"click":"btnOK"}
              {"click":"chkFlag"}
              {"focus":"txtName"}
              {"type":"x"}
              {"key":"Enter"}
              {"close":true}
              {"select":"TDBList1","row":0}
              {"menu":"mnuDelete"}
              {"answer":"yes"}
              {"get":["chkFlag.Value","txtName.Text","Form.ActiveControl"]}
              {"answer":"ok"})"),
      ElementsAre(HasSubstr("msgbox"), R"({"refused":"a message box is open","action":{"click":"chkFlag"}})",
                  R"({"refused":"a message box is open","action":{"focus":"txtName"}})",
                  R"({"refused":"a message box is open","action":{"type":"x"}})",
                  R"({"refused":"a message box is open","action":{"key":"Enter"}})",
                  R"({"refused":"a message box is open","action":{"close":true}})",
                  R"({"refused":"a message box is open","action":{"select":"TDBList1","row":0}})",
                  R"({"refused":"a message box is open","action":{"menu":"mnuDelete"}})",
                  R"({"refused":"the message box has no button \"yes\"","action":{"answer":"yes"}})",
                  R"({"values":{"chkFlag.Value":0,"txtName.Text":"","Form.ActiveControl":"btnOK"}})"));
  EXPECT_THAT(answers, ElementsAre(MsgBoxResult::OK));
}

TEST_F(ScriptedBox, LetsTimePass) {
  openBy(msgbox::OKOnly);
  EXPECT_THAT(acts(R"({"click":"btnOK"}
                      {"wait":5}
                      {"answer":"ok"})"),
              ElementsAre(HasSubstr("msgbox")));
}

TEST_F(ScriptedBox, OpenedByValidateSwallowsTheClick) {
  form.txtName.Validate = [](bool&) { MsgBox(u"Prüfung", msgbox::OKOnly, u""); };
  openBy(msgbox::OKOnly);
  EXPECT_THAT(acts(R"({"focus":"txtName"}
                      {"click":"btnOK"}
                      {"answer":"ok"}
                      {"get":["Form.ActiveControl"]})"),
              ElementsAre(HasSubstr("Prüfung"), R"({"values":{"Form.ActiveControl":"btnOK"}})"));
  EXPECT_THAT(answers, IsEmpty());
}

TEST_F(ScriptedBox, MayComeWhileItsFormCloses) {
  form.Unload = [](int&) { MsgBox(u"Ende", msgbox::OKOnly, u""); };
  EXPECT_THAT(run(R"({"close":true}
                     {"click":"btnOK"}
                     {"answer":"ok"}
                     {"answer":"ok"})"),
              ElementsAre(HasSubstr("shown"), HasSubstr("Ende"),
                          R"({"refused":"a message box is open","action":{"click":"btnOK"}})",
                          R"({"closed":"frmSample"})",
                          R"({"refused":"no message box is open","action":{"answer":"ok"}})"));
}

TEST_F(ScriptedBox, FollowsAnother) {
  form.btnOK.Click = [&] {
    if (MsgBox(u"Erste", msgbox::YesNo, u"") == MsgBoxResult::Yes) MsgBox(u"Zweite", msgbox::OKOnly, u"");
    form.chkFlag.Value(1);
  };
  EXPECT_THAT(acts(R"({"click":"btnOK"}
                      {"answer":"yes"}
                      {"answer":"ok"}
                      {"get":["chkFlag.Value"]})"),
              ElementsAre(HasSubstr("Erste"), HasSubstr("Zweite"), R"({"values":{"chkFlag.Value":1}})"));
}

}  // namespace
}  // namespace zqn::script
