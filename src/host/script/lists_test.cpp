// SPDX-License-Identifier: MIT
//
// Lists over a database: which row a press means, rows that somebody else has changed, a list that has lost
// its recordset.
#include "runtime/resume_next.h"
#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

class ListRows : public ScriptTest {
 protected:
  ListRows() {
    form.TDBList1.RowColChange = [this] { form.txtName.Text(form.TDBList1.Text()); };
    form.TDBList1.DblClick = [this] { form.Caption(u"genommen: " + form.TDBList1.Text()); };
  }

  /// Rows K01 to K30 instead.
  void thirtyRows() {
    connection->Execute(u"DELETE FROM Stati");
    connection->Execute(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30) "
        u"INSERT INTO Stati SELECT printf('K%02d', i), 'Name ' || i, i FROM n");
    bindList();
  }
  /// Leaving the key field searches the list for its key.
  void searchOnLeaving() {
    form.txtKey.LostFocus = [this] {
      ResumeNext step;
      step([&] { rs->Find(u"Status=" + ado::sql::value(form.txtKey.Text())); });
      step([&] { form.TDBList1.Bookmark(rs->Bookmark()); });
    };
  }
};

TEST_F(ListRows, ADoubleClickMeansTheRowThatStoodUnderThePointerBeforeTheListScrolled) {
  thirtyRows();
  searchOnLeaving();
  EXPECT_THAT(acts(R"({"focus":"txtKey"}
                      {"type":"K25"}
                      {"dblclick":"TDBList1","row":2}
                      {"get":["Form.Caption","TDBList1.Row","txtName.Text"]})"),
              ElementsAre(R"({"values":{"Form.Caption":"genommen: K03","TDBList1.Row":2,)"
                          R"("txtName.Text":"K03"}})"));
}

TEST_F(ListRows, AClickMeansItToo) {
  thirtyRows();
  searchOnLeaving();
  EXPECT_THAT(acts(R"({"focus":"txtKey"}
                      {"type":"K02"}
                      {"select":"TDBList1","row":27}
                      {"get":["TDBList1.Text","txtName.Text"]})"),
              ElementsAre(R"({"values":{"TDBList1.Text":"K28","txtName.Text":"K28"}})"));
}

TEST_F(ListRows, ARowIsReadWhenItIsMarked) {
  bindList();
  EXPECT_THAT(acts(R"({"exec":"UPDATE Stati SET Name='Neu' WHERE Status='20'"}
                      {"exec":"DELETE FROM Stati WHERE Status='30'"}
                      {"select":"TDBList1","row":1}
                      {"get":["TDBList1.Columns(1).Value"]}
                      {"dblclick":"TDBList1","row":2}
                      {"get":["Form.Caption","TDBList1.Row","TDBList1.Text","TDBList1.Columns(0).Value"]}
                      {"list":"TDBList1"})"),
              ElementsAre(R"({"values":{"TDBList1.Columns(1).Value":"Neu"}})",
                          R"({"values":{"Form.Caption":"genommen: ","TDBList1.Row":2,"TDBList1.Text":"",)"
                          R"("TDBList1.Columns(0).Value":null}})",
                          R"({"list":"TDBList1","columns":["Status","Name","Rang"],"rows":[["10",)"
                          R"("Erstkontakt","1"],["20","Neu","2"],["","",""]],"row":2})"));
}

/// The same script, with probes and without.
TEST_F(ListRows, AProbeOfTheListChangesNothingThatComesAfterwards) {
  for (const char* probe : {"", R"({"list":"TDBList1"})", R"({"get":["TDBList1.Text"]})"}) {
    connection->Execute(u"DELETE FROM Stati");
    connection->Execute(u"INSERT INTO Stati VALUES ('10', 'Erstkontakt', 1), ('20', 'Angebot', 2)");
    bindList();
    form.txtName.Text(u"");
    form.Caption(u"Bühne");
    const Lines lines =
        acts(std::string(probe) + "\n" + R"({"select":"TDBList1","row":1})" + "\n" + probe + "\n" +
             R"({"exec":"DELETE FROM Stati WHERE Status='20'"})" + "\n" + probe + "\n" +
             R"({"get":["txtName.Text"]}
                                {"key":"Up"}
                                {"exec":"DELETE FROM Stati WHERE Status='10'"})" +
             "\n" + probe + "\n" +
             R"({"dblclick":"TDBList1","row":1}
                                {"get":["Form.Caption","txtName.Text"]})");
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), R"({"values":{"Form.Caption":"genommen: ","txtName.Text":""}})") << probe;
  }
}

TEST_F(ListRows, WhatWasMarkedStaysWhatItWasUntilAnotherRowIsMarked) {
  bindList();
  form.btnOK.Click = [this] { form.txtKey.Text(form.TDBList1.Text()); };
  EXPECT_THAT(acts(R"({"select":"TDBList1","row":1}
                      {"exec":"UPDATE Stati SET Status='2X' WHERE Status='20'"}
                      {"get":["TDBList1.Text"]}
                      {"click":"btnOK"}
                      {"get":["txtKey.Text"]})"),
              ElementsAre(R"({"values":{"TDBList1.Text":"2X"}})", R"({"values":{"txtKey.Text":"20"}})"))
      << "a probe reads afresh, the form has what was marked";
}

TEST_F(ListRows, AListThatHasLostItsRecordsetIsEmptyAtOnce) {
  bindList();
  form.btnOK.Click = [this] {
    form.TDBList1.HoldFields();
    rs->Requery();
    form.TDBList1.ReBind();
  };
  EXPECT_THAT(
      acts(R"({"select":"TDBList1","row":2}
              {"fail":{"operation":"Requery","match":"Stati","number":-2147467259,"description":"fort","times":1}}
              {"click":"btnOK"}
              {"get":["TDBList1.Row","TDBList1.Text","TDBList1.Columns(0).Value","TDBList1.Columns(0).Caption"]}
              {"list":"TDBList1"}
              {"select":"TDBList1","row":0}
              {"focus":"TDBList1"}
              {"key":"Down"}
              {"key":"End"}
              {"type":"1"}
              {"get":["TDBList1.Row"]})"),
      ElementsAre(
          R"({"error":{"in":"btnOK_Click","number":-2147467259,"description":"fort"}})",
          R"({"values":{"TDBList1.Row":-1,"TDBList1.Text":"","TDBList1.Columns(0).Value":{"empty":true},)"
          R"("TDBList1.Columns(0).Caption":"Status"}})",
          R"({"list":"TDBList1","columns":["Status","Name","Rang"],"rows":[],"row":-1})",
          R"({"refused":"TDBList1 has no row 0","action":{"select":"TDBList1","row":0}})",
          R"({"values":{"TDBList1.Row":-1}})"));
}

TEST_F(ListRows, TypingFindsInTheListAsTheDatabaseHoldsItNow) {
  thirtyRows();
  EXPECT_THAT(acts(R"({"list":"TDBList1"}
                      {"exec":"UPDATE Stati SET Status='K9' WHERE Status='K30'"}
                      {"exec":"DELETE FROM Stati WHERE Status BETWEEN 'K10' AND 'K19'"}
                      {"type":"K9"}
                      {"get":["TDBList1.Row","TDBList1.Text"]}
                      {"key":"Home"}
                      {"type":"K1"}
                      {"get":["TDBList1.Row","TDBList1.Text"]})"),
              ElementsAre(HasSubstr(R"(["K30","Name 30","30"])"),
                          R"({"values":{"TDBList1.Row":29,"TDBList1.Text":"K9"}})",
                          R"({"values":{"TDBList1.Row":0,"TDBList1.Text":"K01"}})"));
}

TEST_F(ListRows, AnyColumnIsReachedThroughTheSplit) {
  bindList();
  form.TDBList1.Splits(0).Columns(1).AllowSizing(false);
  EXPECT_THAT(
      acts(R"~({"get":["TDBList1.Splits(0).Columns(1).AllowSizing","TDBList1.Columns(0).AllowSizing"]})~"),
      ElementsAre(R"~({"values":{"TDBList1.Splits(0).Columns(1).AllowSizing":false,)~"
                  R"~("TDBList1.Columns(0).AllowSizing":true}})~"));
}

TEST_F(ListRows, RowsThatAListLacksAreRefused) {
  bindList();
  EXPECT_THAT(acts(R"({"select":"TDBList1","row":3}
                      {"dblclick":"TDBList1","row":-1}
                      {"dblclick":"TDBList1","row":2147483647}
                      {"select":"txtKey","row":0}
                      {"get":["TDBList1.Row","Form.ActiveControl"]})"),
              ElementsAre(R"({"refused":"TDBList1 has no row 3","action":{"select":"TDBList1","row":3}})",
                          R"({"refused":"TDBList1 has no row -1","action":{"dblclick":"TDBList1","row":-1}})",
                          R"({"refused":"TDBList1 has no row 2147483647",)"
                          R"("action":{"dblclick":"TDBList1","row":2147483647}})",
                          R"({"refused":"txtKey is a TextBox and has no rows to click on",)"
                          R"("action":{"select":"txtKey","row":0}})",
                          R"({"values":{"TDBList1.Row":0,"Form.ActiveControl":"TDBList1"}})"));
}

TEST_F(ListRows, ARowThatIsNoNumberEndsTheScript) {
  bindList();
  EXPECT_THAT(run(R"({"select":"TDBList1","row":"2"})").back(),
              HasSubstr(R"("scriptError":"line 1: \"row\" must be a whole number)"));
  EXPECT_TRUE(failed);
}

}  // namespace
}  // namespace zqn::script
