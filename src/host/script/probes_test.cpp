// SPDX-License-Identifier: MIT
#include <filesystem>

#include "forms/desktop.h"
#include "forms/writing_procedure.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

class Probe : public ScriptTest {};

TEST_F(Probe, GetReadsAnyPropertyOfAnyControl) {
  form.txtKey.Text(u"10");
  form.txtKey.ToolTipText(u"Der Schlüssel");
  form.lblSecond.ForeColor(0xFF);
  form.chkFlag.Value(1);
  EXPECT_THAT(
      acts(R"({"get":["txtKey.Text","TXTKEY.text","txtKey.MaxLength","txtKey.ToolTipText"]}
                      {"get":["btnOff.Enabled","btnHidden.Visible","chkFlag.Value"]}
                      {"get":["Label1(1).Caption","Label1(1).ForeColor","txtKey.BackColor"]}
                      {"get":["Form.Caption","Form.Width","Form.ActiveControl"]})"),
      ElementsAre(
          R"({"values":{"txtKey.Text":"10","TXTKEY.text":"10","txtKey.MaxLength":3,"txtKey.ToolTipText":"Der Schlüssel"}})",
          R"({"values":{"btnOff.Enabled":false,"btnHidden.Visible":false,"chkFlag.Value":1}})",
          R"({"values":{"Label1(1).Caption":"%","Label1(1).ForeColor":255,"txtKey.BackColor":2147483653}})",
          R"({"values":{"Form.Caption":"Bühne","Form.Width":5490,"Form.ActiveControl":"TDBList1"}})"));
}

TEST_F(Probe, GetReadsAList) {
  bindList();
  form.TDBList1.Columns(1).Caption(u"Bezeichnung");
  form.TDBList1.HighlightRowStyle({.BackColor = 0x8000000F, .ForeColor = 0});
  EXPECT_THAT(
      acts(
          R"({"get":["TDBList1.Row","TDBList1.Text","TDBList1.Columns(1).Caption","TDBList1.Columns(2).Value",)"
          R"("TDBList1.HighlightRowStyle.BackColor","TDBList1.ColumnHeaders"]})"),
      ElementsAre(
          R"({"values":{"TDBList1.Row":0,"TDBList1.Text":"10","TDBList1.Columns(1).Caption":"Bezeichnung",)"
          R"("TDBList1.Columns(2).Value":1,"TDBList1.HighlightRowStyle.BackColor":2147483663,)"
          R"("TDBList1.ColumnHeaders":true}})"));
}

TEST_F(Probe, GetOfNothingGivesNothing) {
  EXPECT_THAT(acts(R"({"get":[]})"), ElementsAre(R"({"values":{}})"));
}

TEST_F(Probe, ListGivesTheVisibleColumnsOfAllRows) {
  bindList();
  form.TDBList1.Columns(1).Caption(u"Bezeichnung");
  form.TDBList1.Columns(2).Width(0);
  form.TDBList1.ColumnHeaders(false);
  EXPECT_THAT(acts(R"({"select":"TDBList1","row":1}
                      {"list":"TDBList1"})"),
              ElementsAre(R"({"list":"TDBList1","columns":["Status","Bezeichnung"],)"
                          R"("rows":[["10","Erstkontakt"],["20","Angebot"],["30",""]],"row":1})"));
  form.TDBList1.Columns(0).Visible(false);
  EXPECT_THAT(acts(R"({"list":"TDBList1"})"),
              ElementsAre(R"({"list":"TDBList1","columns":["Bezeichnung"],)"
                          R"("rows":[["Erstkontakt"],["Angebot"],[""]],"row":1})"));
}

TEST_F(Probe, ListWithoutDataIsEmpty) {
  EXPECT_THAT(acts(R"({"list":"TDBList1"})"),
              ElementsAre(R"({"list":"TDBList1","columns":[],"rows":[],"row":-1})"));
}

TEST_F(Probe, ListReadsALargeTableToItsEnd) {
  connection->Execute(
      u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000) "
      u"INSERT INTO Stati SELECT 'x' || i, '', i FROM n");
  bindList();
  const Json list = Json::parse(acts(R"({"list":"TDBList1"})").at(0));
  EXPECT_EQ(list["rows"].size(), 5003U);
}

TEST_F(Probe, DumpGivesEveryVisibleControlInTabOrder) {
  form.txtName.Text(u"Angebot");
  bindList();
  EXPECT_THAT(
      acts(R"({"dump":true})"),
      ElementsAre(
          R"({"dump":[{"name":"TDBList1","kind":"TDBList","left":120,"top":120,"width":4500,"height":1500,"text":"10","enabled":true},)"
          R"({"name":"lblKey","kind":"Label","left":120,"top":1740,"width":855,"height":255,"caption":"S&chlüssel","enabled":true},)"
          R"({"name":"txtKey","kind":"TextBox","left":120,"top":2040,"width":855,"height":285,"text":"","enabled":true},)"
          R"~({"name":"Label1(0)","kind":"Label","left":1080,"top":1740,"width":855,"height":255,"caption":"Name","enabled":true},)~"
          R"({"name":"txtName","kind":"TextBox","left":1080,"top":2040,"width":2500,"height":285,"text":"Angebot","enabled":true},)"
          R"~({"name":"Label1(1)","kind":"Label","left":3660,"top":2040,"width":345,"height":255,"caption":"%","enabled":true},)~"
          R"({"name":"chkFlag","kind":"CheckBox","left":120,"top":2460,"width":2500,"height":255,"caption":"Meilenstein","enabled":true},)"
          R"({"name":"btnOK","kind":"CommandButton","left":120,"top":2820,"width":1215,"height":315,"caption":"Speichern","enabled":true},)"
          R"({"name":"btnCancel","kind":"CommandButton","left":1440,"top":2820,"width":1215,"height":315,"caption":"Schließen","enabled":true},)"
          R"({"name":"btnOff","kind":"CommandButton","left":4080,"top":2820,"width":1215,"height":315,"caption":"Gesperrt","enabled":false}]})"));
}

TEST_F(Probe, SqlGivesValuesAsStored) {
  EXPECT_THAT(
      acts(R"({"sql":"SELECT Status, Name, Rang, 0.5, 3.0, 12345678901 FROM Stati WHERE Status='30'"})"),
      ElementsAre(R"({"rows":[["30",null,3,0.5,3,12345678901]]})"));
}

TEST_F(Probe, SqlWithoutRowsGivesNone) {
  EXPECT_THAT(acts(R"({"sql":"SELECT * FROM Stati WHERE Status='zz'"})"), ElementsAre(R"({"rows":[]})"));
}

TEST_F(Probe, SettingsGivesTheKeysOfASection) {
  settings = {{u"Belegdruck", u"OMRLayout", u"Standard", 0}, {u"Allgemein", u"Landeswährung", u"EUR", 1}};
  EXPECT_THAT(acts(R"({"settings":"Belegdruck"}
                      {"settings":"Nirgends"})"),
              ElementsAre(R"({"settings":{"OMRLayout":"Standard"}})", R"({"settings":{}})"));
}

TEST_F(Probe, StatementsAreThoseHandedToOpenAndExecuteSinceLastAsked) {
  form.btnOK.Click = [&] {
    bindList();
    connection->Execute(u"DELETE FROM Stati WHERE Status='99'");
    rs->Requery();
    try {
      connection->Execute(u"DELETE FROM Nirgends");
    } catch (const RuntimeError&) {
    }
    try {
      connection->Execute(u"DELETE FROM Stati WHERE Status=" + ado::sql::value(u"O'Neill"));
    } catch (const RuntimeError&) {
    }
  };
  faults.takeStatements();
  EXPECT_THAT(acts(R"({"statements":true}
                      {"click":"btnOK"}
                      {"statements":true}
                      {"statements":true})"),
              ElementsAre(R"({"statements":[]})",
                          R"({"statements":["SELECT Status, Name, Rang FROM Stati ORDER BY Status",)"
                          R"("DELETE FROM Stati WHERE Status='99'","DELETE FROM Nirgends",)"
                          R"("DELETE FROM Stati WHERE Status='O'Neill'"]})",
                          R"({"statements":[]})"));
}

TEST_F(Probe, ScreenshotWritesNothingToTheTranscript) {
  const auto file = std::filesystem::temp_directory_path() / "zqn-script-bild.png";
  std::filesystem::remove(file);
  EXPECT_THAT(acts(R"({"screenshot":")" + file.string() + R"("})"), IsEmpty());
  EXPECT_EQ(std::filesystem::exists(file), scriptDesktop->hasScreen());
  std::filesystem::remove(file);
}

TEST_F(Probe, WorksBehindAMessageBox) {
  bindList();
  form.btnOK.Click = [] { MsgBox(u"Text", msgbox::OKOnly, u"Titel"); };
  EXPECT_THAT(acts(R"({"click":"btnOK"}
                      {"list":"TDBList1"}
                      {"get":["Form.Caption"]}
                      {"exec":"UPDATE Stati SET Name='Neu' WHERE Status='20'"}
                      {"sql":"SELECT Name FROM Stati WHERE Status='20'"}
                      {"dump":true}
                      {"answer":"ok"})"),
              ElementsAre(HasSubstr("msgbox"), HasSubstr(R"(["10","Erstkontakt","1"])"),
                          R"({"values":{"Form.Caption":"Bühne"}})", R"({"rows":[["Neu"]]})",
                          HasSubstr(R"({"dump":[{"name":"TDBList1",)")));
}

TEST_F(Probe, WorksAfterTheEndAsFarAsItNeedsNoForm) {
  EXPECT_THAT(
      run(R"({"close":true}
                     {"sql":"SELECT 1"}
                     {"statements":true}
                     {"settings":"x"}
                     {"get":["txtKey.Text"]}
                     {"list":"TDBList1"}
                     {"dump":true}
                     {"screenshot":"x.png"}
                     {"click":"btnOK"}
                     {"wait":1})"),
      ElementsAre(HasSubstr("shown"), HasSubstr("closed"), R"({"rows":[[1]]})", R"({"statements":[]})",
                  R"({"settings":{}})", R"({"refused":"no form is open","action":{"get":["txtKey.Text"]}})",
                  R"({"refused":"no form is open","action":{"list":"TDBList1"}})",
                  R"({"refused":"no form is open","action":{"dump":true}})",
                  R"({"refused":"no form is open","action":{"screenshot":"x.png"}})",
                  R"({"refused":"no form is open","action":{"click":"btnOK"}})",
                  R"({"refused":"no form is open","action":{"wait":1}})"));
  EXPECT_FALSE(failed);
}

TEST_F(Probe, PassedOverGivesTheFailuresSinceLastAsked) {
  form.btnOK.Click = [this] {
    const WritingProcedure writing(form, u"WriteRecord");
    ResumeNext step;
    step([] { throw RuntimeError(5, u"Datei gesperrt"); });
    step([] { throw RuntimeError(3219, u"noch offen"); });
  };
  EXPECT_THAT(acts(R"({"passedOver":true}
                      {"click":"btnOK"}
                      {"passedOver":true}
                      {"passedOver":true})"),
              ElementsAre(R"({"passedOver":[]})",
                          R"({"passedOver":[{"in":"WriteRecord","number":5,"description":"Datei gesperrt"},)"
                          R"({"in":"WriteRecord","number":3219,"description":"noch offen"}]})",
                          R"({"passedOver":[]})"));
}

}  // namespace
}  // namespace zqn::script
